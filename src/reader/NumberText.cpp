#include "reader/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace lumeric {

int formatNumber(char* buffer, double value) {
  if (std::isnan(value) || std::isinf(value)) {
    // printf spells these without any digits; keep its exact texts.
    return std::snprintf(buffer, kNumberTextSize, "%g", value);
  }
  // to_chars with the general format and a precision is specified to give
  // the text of printf's "%.*g", at a fraction of its cost.
  auto result = std::to_chars(buffer, buffer + kNumberTextSize - 1, value, std::chars_format::general, 6);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

int formatInteger(char* buffer, long value) {
  auto result = std::to_chars(buffer, buffer + kNumberTextSize - 1, value);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

void writeNumber(FILE* out, double value) {
  char text[kNumberTextSize];
  int length = formatNumber(text, value);
  std::fwrite(text, 1, static_cast<size_t>(length), out);
}

void writeInteger(FILE* out, long value) {
  char text[kNumberTextSize];
  int length = formatInteger(text, value);
  std::fwrite(text, 1, static_cast<size_t>(length), out);
}

}  // namespace lumeric
