#include "core/DecimalText.h"

#include "core/CharacterClasses.h"
#include "core/FloatText.h"
#include "core/ShortCopy.h"

namespace lumeric {

namespace {

constexpr int kMaxDigits = 15;

// The significant digits of a decimal number, most significant first, and
// its place: the value is 0.d1d2d3... * 10^exponent.
struct Digits {
  char d[kMaxPlainDecimal + 2];
  int count = 0;
  int exponent = 0;
};

// Keeps the first `keep` digits (1 <= keep < count), rounding the rest half
// away from zero.  False on an exact half.  Random digits make the
// direction unpredictable, so it is added rather than branched on.
bool keepDigits(Digits& x, int keep) {
  const char first = x.d[keep];
  if (first == '5') {
    bool rest = false;
    for (int i = keep + 1; i < x.count; ++i) rest |= x.d[i] != '0';
    if (!rest) return false;
  }
  x.count = keep;
  int i = keep - 1;
  x.d[i] = static_cast<char>(x.d[i] + (first >= '5' ? 1 : 0));
  while (x.d[i] > '9') {
    x.d[i] = '0';
    if (i == 0) {
      // 9...9 carried into a new leading digit.
      x.d[0] = '1';
      ++x.exponent;
      break;
    }
    --i;
    ++x.d[i];
  }
  return true;
}

}  // namespace

bool isPlainDecimal(const char* text, PlainDecimal* decimal) {
  const char* p = text;
  if (*p == '-' || *p == '+') ++p;
  const char* start = p;
  if (p[0] == '0' && isAsciiDigit(p[1])) return false;
  bool digits = false;
  for (; isAsciiDigit(*p); ++p) digits = true;
  const char* point = p;
  if (*p == '.') {
    for (++p; isAsciiDigit(*p); ++p) digits = true;
  }
  if (!digits || *p != '\0' || static_cast<size_t>(p - start) > kMaxPlainDecimal) return false;
  decimal->text = text;
  decimal->length = static_cast<size_t>(p - text);
  decimal->point = static_cast<size_t>(point - text);
  return true;
}

double plainDecimalValue(const PlainDecimal& decimal) {
  const char* text = decimal.text;
  const bool negative = text[0] == '-';
  const size_t sign = negative || text[0] == '+' ? 1 : 0;
  double value = 0;
  parseDecimalText(text + sign, text + decimal.length, &value);
  return negative ? -value : value;
}

// The text's value is D = m * 10^-f exactly.  The step rounding divides the
// double nearest D by the double nearest 10^-d and rounds; with at most 15
// digits in play, both errors are far smaller than the distance from D *
// 10^d to a half, unless it is one, so the step count is D * 10^d rounded.
// The product with the step is then within two units of the last bit of the
// decimal result R, and "%g" of it is R rounded to six digits, again unless
// R lies exactly on a half.
int roundDecimalText(const PlainDecimal& decimal, int stepDecimals, char* out) {
  const char* p = decimal.text;
  const char* end = p + decimal.length;
  const bool negative = *p == '-';
  if (*p == '-' || *p == '+') ++p;
  // The integer part is empty, "0", or starts with a digit other than 0.
  const char* integerEnd = decimal.text + decimal.point;
  const char* fraction = integerEnd < end ? integerEnd + 1 : end;
  Digits x;
  if (integerEnd - p > 1 || (integerEnd - p == 1 && *p != '0')) {
    const size_t integerDigits = static_cast<size_t>(integerEnd - p);
    const size_t fractionDigits = static_cast<size_t>(end - fraction);
    if (integerDigits + fractionDigits > kMaxDigits) return 0;
    copyShort(x.d, p, integerDigits);
    copyShort(x.d + integerDigits, fraction, fractionDigits);
    x.count = static_cast<int>(integerDigits + fractionDigits);
    x.exponent = static_cast<int>(integerDigits);
  } else {
    const char* first = fraction;
    while (first < end && *first == '0') ++first;
    if (end - first > kMaxDigits) return 0;
    x.count = static_cast<int>(end - first);
    copyShort(x.d, first, static_cast<size_t>(x.count));
    x.exponent = -static_cast<int>(first - fraction);
  }

  if (stepDecimals >= 0 && x.count > 0) {
    // The digits at or above the step's place.
    int keep = x.exponent + stepDecimals;
    if (keep > kMaxDigits) return 0;
    if (keep < 0) {
      x.count = 0;  // below a tenth of the step
    } else if (keep < x.count) {
      if (keep == 0) {
        // Round the first digit into a leading zero.
        for (int i = x.count; i > 0; --i) x.d[i] = x.d[i - 1];
        x.d[0] = '0';
        ++x.count;
        ++x.exponent;
        keep = 1;
      }
      if (!keepDigits(x, keep)) return 0;
      if (x.d[0] == '0') x.count = 0;
    }
  }

  char* o = out;
  if (negative) *o++ = '-';
  if (x.count == 0) {
    *o++ = '0';
    *o = '\0';
    return static_cast<int>(o - out);
  }
  // Six significant digits, as "%g" writes.
  if (x.count > 6 && !keepDigits(x, 6)) return 0;
  const int decimalExponent = x.exponent - 1;
  if (decimalExponent < -4 || decimalExponent >= 6) return 0;
  int n = x.count;
  while (n > 1 && x.d[n - 1] == '0') --n;
  // One to six digits remain; saying so keeps the copies below in bounds
  // for the compiler as well.
  if (n < 1 || n > 6) return 0;

  if (decimalExponent >= 0) {
    const int whole = decimalExponent + 1;
    if (n > whole) {
      copyShort(o, x.d, static_cast<size_t>(whole));
      o += whole;
      *o++ = '.';
      copyShort(o, x.d + whole, static_cast<size_t>(n - whole));
      o += n - whole;
    } else {
      copyShort(o, x.d, static_cast<size_t>(n));
      o += n;
      for (int i = n; i < whole; ++i) *o++ = '0';
    }
  } else {
    *o++ = '0';
    *o++ = '.';
    for (int i = -1; i > decimalExponent; --i) *o++ = '0';
    copyShort(o, x.d, static_cast<size_t>(n));
    o += n;
  }
  *o = '\0';
  return static_cast<int>(o - out);
}

int truncateDecimalText(const PlainDecimal& decimal, char* out) {
  const char* p = decimal.text;
  const char* end = p + decimal.length;
  const bool negative = *p == '-';
  if (*p == '-' || *p == '+') ++p;
  const char* point = decimal.text + decimal.point;
  // The integer part is empty, "0", or starts with a digit other than 0.
  const char* first = point - p == 1 && *p == '0' ? point : p;
  const long integerDigits = point - first;
  const long allDigits = (end - p) - (point < end ? 1 : 0);
  if (integerDigits > 9 || allDigits > kMaxDigits) return 0;
  char* o = out;
  if (integerDigits == 0) {
    *o++ = '0';
  } else {
    if (negative) *o++ = '-';
    copyShort(o, first, static_cast<size_t>(integerDigits));
    o += integerDigits;
  }
  *o = '\0';
  return static_cast<int>(o - out);
}

}  // namespace lumeric
