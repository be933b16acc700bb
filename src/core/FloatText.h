// Decimal texts of doubles through <charconv> where the C++ library has its
// floating-point functions, and through the C library where it lacks them
// (the WebAssembly build's): both paths give the same digits and the same
// values, and both are compiled everywhere so that they can be compared.
#ifndef LUMERIC_CORE_FLOATTEXT_H
#define LUMERIC_CORE_FLOATTEXT_H

namespace lumeric {

// Writes `value` as printf's "%.6g" would into `buffer` (`size` bytes, at
// least 32), terminated; returns the length.
int formatGeneral6(char* buffer, int size, double value);
// The same through snprintf alone.
int formatGeneral6ByPrintf(char* buffer, int size, double value);

// Writes the shortest text that reads back as `value` (as the plain
// std::to_chars does: the fixed or the scientific form, whichever is
// shorter, fixed on a tie), terminated; returns the length.  `size` is at
// least 32.
int formatShortest(char* buffer, int size, double value);
int formatShortest(char* buffer, int size, float value);
// The same through snprintf and strtod alone.
int formatShortestByPrintf(char* buffer, int size, double value);
int formatShortestByPrintf(char* buffer, int size, float value);

// Reads the well-formed decimal text [begin, end) into `value`, correctly
// rounded.  False when the text is not one number or its value is beyond
// the range of doubles (the caller decides what that gives).
bool parseDecimalText(const char* begin, const char* end, double* value);
// The same through strtod alone.
bool parseDecimalTextByStrtod(const char* begin, const char* end, double* value);

}  // namespace lumeric

#endif  // LUMERIC_CORE_FLOATTEXT_H
