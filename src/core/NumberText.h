// Number texts as the translator writes them: "%g" (six significant digits)
// and "%d", produced without going through printf.
#ifndef LUMERIC_CORE_NUMBERTEXT_H
#define LUMERIC_CORE_NUMBERTEXT_H

namespace lumeric {

// Room for any formatNumber / formatInteger text with its terminator.
constexpr int kNumberTextSize = 32;

// Writes `value` as printf's "%g" would into `buffer` (kNumberTextSize
// bytes); returns the length.
int formatNumber(char* buffer, double value);
// Writes `value` as printf's "%d" would; returns the length.
int formatInteger(char* buffer, long value);

}  // namespace lumeric

#endif  // LUMERIC_CORE_NUMBERTEXT_H
