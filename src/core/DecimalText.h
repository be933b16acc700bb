// Plain decimal texts ("-12.5", "0.25", "7", ".5"): a sign, digits and at
// most one point, no exponent.  Most values of a scene are written this way,
// and most are written back rounded; working on their digits spares reading
// them into a double and formatting the double again.
#ifndef LUMERIC_CORE_DECIMALTEXT_H
#define LUMERIC_CORE_DECIMALTEXT_H

#include <cstddef>

namespace lumeric {

// The longest plain decimal text accepted, sign excluded; the expression
// lexer's quick number reading takes the same.
constexpr size_t kMaxPlainDecimal = 31;

// A plain decimal text, its length and the offset of its point (the length
// when it has none).
struct PlainDecimal {
  const char* text;
  size_t length;
  size_t point;
};

// True when the terminated `text` is one plain decimal number: an optional
// sign, digits with at most one point and at least one digit, no exponent,
// no leading zero before another digit ("007" is not one, as in the
// expression language), at most kMaxPlainDecimal characters after the sign.
// *decimal then describes it.
bool isPlainDecimal(const char* text, PlainDecimal* decimal);

// The value of the plain decimal, correctly rounded as the expression
// language reads it.
double plainDecimalValue(const PlainDecimal& decimal);

// Writes into `out` (at least 32 bytes) the text formatNumber writes for
// the value of the plain decimal after rounding to a step of
// 10^-stepDecimals (as roundToPrecision does; no rounding when stepDecimals
// is negative), reading the digits alone; returns its length.  Returns 0
// when the digits do not settle the written text exactly: more than 15
// significant digits, a tie in either rounding (where the rounding of the
// binary value decides), or a value that "%g" writes with an exponent.
int roundDecimalText(const PlainDecimal& decimal, int stepDecimals, char* out);

// Writes into `out` (at least 32 bytes) the "%d" text of the value of the
// plain decimal truncated toward zero, reading the digits alone; returns
// its length.  Returns 0 for more than 9 digits before the point or more
// than 15 in all, where the value may round across an integer or past the
// range of int.
int truncateDecimalText(const PlainDecimal& decimal, char* out);

}  // namespace lumeric

#endif  // LUMERIC_CORE_DECIMALTEXT_H
