# Whether the C++ library has the floating-point std::to_chars and
# std::from_chars (Emscripten's does not): src/core/FloatText.cpp takes them
# when it has, and the C library's snprintf and strtod otherwise.
include(CheckCXXSourceCompiles)
check_cxx_source_compiles([[
#include <charconv>
int main() {
  char text[32];
  double value = 0;
  auto written = std::to_chars(text, text + sizeof text, 1.5, std::chars_format::general, 6);
  auto read = std::from_chars(text, written.ptr, value);
  return read.ptr == text;
}]] LUMERIC_HAVE_FLOAT_CHARCONV)
if(LUMERIC_HAVE_FLOAT_CHARCONV)
  add_compile_definitions(LUMERIC_FLOAT_CHARCONV=1)
else()
  add_compile_definitions(LUMERIC_FLOAT_CHARCONV=0)
endif()
