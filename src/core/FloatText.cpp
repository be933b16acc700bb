#include "core/FloatText.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#if LUMERIC_FLOAT_CHARCONV
#include <charconv>
#include <system_error>
#endif

namespace lumeric {

int formatGeneral6ByPrintf(char* buffer, int size, double value) {
  const int length = std::snprintf(buffer, static_cast<size_t>(size), "%.6g", value);
  return length < size ? length : size - 1;
}

bool parseDecimalTextByStrtod(const char* begin, const char* end, double* value) {
  // strtod needs a terminated text; a short one stays on the stack.
  char local[64];
  std::string heap;
  const size_t length = static_cast<size_t>(end - begin);
  const char* text = local;
  if (length < sizeof local) {
    std::memcpy(local, begin, length);
    local[length] = '\0';
  } else {
    heap.assign(begin, end);
    text = heap.c_str();
  }
  char* stop = nullptr;
  errno = 0;
  const double number = std::strtod(text, &stop);
  if (stop != text + length || errno == ERANGE) return false;
  *value = number;
  return true;
}

#if LUMERIC_FLOAT_CHARCONV

// to_chars with the general format and a precision is specified to give
// the text of printf's "%.*g", at a fraction of its cost.
int formatGeneral6(char* buffer, int size, double value) {
  auto result = std::to_chars(buffer, buffer + size - 1, value, std::chars_format::general, 6);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

// from_chars rounds exactly as strtod does.
bool parseDecimalText(const char* begin, const char* end, double* value) {
  double number = 0.0;
  std::from_chars_result result = std::from_chars(begin, end, number);
  if (result.ec != std::errc() || result.ptr != end) return false;
  *value = number;
  return true;
}

#else

int formatGeneral6(char* buffer, int size, double value) { return formatGeneral6ByPrintf(buffer, size, value); }

bool parseDecimalText(const char* begin, const char* end, double* value) {
  return parseDecimalTextByStrtod(begin, end, value);
}

#endif

}  // namespace lumeric
