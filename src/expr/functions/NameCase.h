// Function, unit and colour names are matched without regard to the case of
// their (ASCII) letters.
#ifndef LUMERIC_EXPR_FUNCTIONS_NAMECASE_H
#define LUMERIC_EXPR_FUNCTIONS_NAMECASE_H

#include <cstddef>

namespace lumeric {

inline char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Whether the two names are equal when both are lower-cased.
inline bool sameNameIgnoringCase(const char* a, const char* b) {
  for (; *a != '\0' && lowerAscii(*a) == lowerAscii(*b); ++a, ++b) {
  }
  return lowerAscii(*a) == lowerAscii(*b);
}

// Copies `name` lower-cased into `out` of `size` bytes; false (and `out`
// unusable) when it does not fit.
inline bool lowerCaseInto(const char* name, char* out, size_t size) {
  for (size_t k = 0; k < size; ++k) {
    out[k] = lowerAscii(name[k]);
    if (out[k] == '\0') return true;
  }
  return false;
}

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_NAMECASE_H
