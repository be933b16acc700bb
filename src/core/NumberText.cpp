#include "core/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "core/FloatText.h"

namespace lumeric {

namespace {

using Wide = unsigned __int128;

// round(m * 2^e * 10^k) to an integer, ties to even, computed exactly.  The
// callers keep the operands small enough for 128 bits.
uint64_t roundScaled(uint64_t m, int e, int k) {
  static const uint64_t kPowers[] = {1,          10,          100,          1000,          10000,
                                     100000,     1000000,     10000000,     100000000,     1000000000,
                                     10000000000, 100000000000, 1000000000000};
  Wide numerator = m;
  Wide denominator = 1;
  if (k >= 0) {
    numerator *= kPowers[k];
  } else {
    denominator *= kPowers[-k];
  }
  if (e >= 0) {
    numerator <<= e;
  } else {
    denominator <<= -e;
  }
  Wide quotient;
  Wide remainder;
  if (k >= 0) {
    // The denominator is a power of two (the common case: numbers below a
    // million): shifts, not a 128-bit division.
    const int shift = e >= 0 ? 0 : -e;
    quotient = numerator >> shift;
    remainder = numerator - (quotient << shift);
  } else if ((numerator >> 64) == 0 && (denominator >> 64) == 0) {
    // Numbers from a million up to about 10^15 mostly fit in 64 bits, and
    // a 64-bit division is several times faster than a 128-bit one.
    const uint64_t n = static_cast<uint64_t>(numerator);
    const uint64_t d = static_cast<uint64_t>(denominator);
    quotient = n / d;
    remainder = n % d;
  } else {
    quotient = numerator / denominator;
    remainder = numerator % denominator;
  }
  const Wide twice = remainder * 2;
  if (twice > denominator || (twice == denominator && (quotient & 1) != 0)) ++quotient;
  return static_cast<uint64_t>(quotient);
}

// printf's "%g" for finite values of moderate size, by exact integer
// arithmetic: the six significant digits are the value scaled by a power of
// ten and rounded to the nearest integer (ties to even, as printf rounds the
// exact value), then laid out as printf lays them out.  Returns the length,
// or 0 when the value is outside the range this handles.
int formatModerateNumber(char* buffer, double value) {
  const double magnitude = std::fabs(value);
  if (!(magnitude >= 1e-5 && magnitude < 1e15)) return 0;
  int binaryExponent = 0;
  const double fraction = std::frexp(magnitude, &binaryExponent);
  const uint64_t m = static_cast<uint64_t>(std::ldexp(fraction, 53));
  const int e = binaryExponent - 53;

  // The decimal exponent from the binary one (log10(2) ~ 78913 / 2^18):
  // never above the true one and at most one below it.
  int exponent = ((binaryExponent - 1) * 78913) >> 18;
  uint64_t digits = roundScaled(m, e, 5 - exponent);
  // The estimate of the decimal exponent may be one off, and rounding may
  // carry into a seventh digit; both show in the count of digits.
  for (int attempt = 0; attempt < 3 && (digits >= 1000000 || digits < 100000); ++attempt) {
    exponent += digits >= 1000000 ? 1 : -1;
    digits = roundScaled(m, e, 5 - exponent);
  }
  if (digits >= 1000000 || digits < 100000) return 0;

  char figures[6];
  for (int i = 5; i >= 0; --i) {
    figures[i] = static_cast<char>('0' + digits % 10);
    digits /= 10;
  }
  int significant = 6;
  while (significant > 1 && figures[significant - 1] == '0') --significant;

  char* p = buffer;
  if (std::signbit(value)) *p++ = '-';
  if (exponent < -4 || exponent >= 6) {
    *p++ = figures[0];
    if (significant > 1) {
      *p++ = '.';
      for (int i = 1; i < significant; ++i) *p++ = figures[i];
    }
    *p++ = 'e';
    *p++ = exponent < 0 ? '-' : '+';
    const int shown = exponent < 0 ? -exponent : exponent;
    if (shown >= 100) *p++ = static_cast<char>('0' + shown / 100);
    *p++ = static_cast<char>('0' + shown / 10 % 10);
    *p++ = static_cast<char>('0' + shown % 10);
  } else if (exponent >= 0) {
    for (int i = 0; i <= exponent; ++i) *p++ = figures[i];
    if (significant > exponent + 1) {
      *p++ = '.';
      for (int i = exponent + 1; i < significant; ++i) *p++ = figures[i];
    }
  } else {
    *p++ = '0';
    *p++ = '.';
    for (int i = -1; i > exponent; --i) *p++ = '0';
    for (int i = 0; i < significant; ++i) *p++ = figures[i];
  }
  *p = '\0';
  return static_cast<int>(p - buffer);
}

}  // namespace

int formatNumber(char* buffer, double value) {
  if (value == 0) {
    const char* text = std::signbit(value) ? "-0" : "0";
    std::memcpy(buffer, text, std::strlen(text) + 1);
    return static_cast<int>(std::strlen(text));
  }
  // Whole numbers of up to six digits ("%g" shows them as integers): loop
  // positions, counts, most defaults.
  if (value > -1e6 && value < 1e6 && value == static_cast<double>(static_cast<int32_t>(value))) {
    return formatInteger(buffer, static_cast<int32_t>(value));
  }
  if (int length = formatModerateNumber(buffer, value)) return length;
  if (std::isnan(value) || std::isinf(value)) {
    // printf spells these without any digits; keep its exact texts.
    return std::snprintf(buffer, kNumberTextSize, "%g", value);
  }
  return formatGeneral6(buffer, kNumberTextSize, value);
}

int formatInteger(char* buffer, long value) {
  auto result = std::to_chars(buffer, buffer + kNumberTextSize - 1, value);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

}  // namespace lumeric
