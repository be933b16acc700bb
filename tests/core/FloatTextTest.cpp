// The two paths of core/FloatText give the same texts and the same values:
// the <charconv> path the native build takes and the C library's path the
// WebAssembly build takes, compared here on the native build.
#include "core/FloatText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

namespace lumeric {
namespace {

uint64_t nextRandom(uint64_t& state) {
  state ^= state << 13;
  state ^= state >> 7;
  state ^= state << 17;
  return state;
}

std::string formatted(int (*format)(char*, int, double), double value) {
  char text[32];
  const int length = format(text, sizeof text, value);
  EXPECT_EQ(length, static_cast<int>(std::strlen(text)));
  return text;
}

// Doubles of every kind: any bit pattern, decimal ties at six digits, the
// extremes.
TEST(FloatText, BothFormatsGiveTheSameDigits) {
  const double chosen[] = {0.0, -0.0, 1e-5, 9.999995e-6, 1e15, 999999.5e10, 5e-324, -2.2250738585072014e-308,
                           std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), 0.000012345650000000001, 1.5e300};
  for (double v : chosen) EXPECT_EQ(formatted(formatGeneral6, v), formatted(formatGeneral6ByPrintf, v)) << v;
  uint64_t state = 0x9e3779b97f4a7c15ull;
  for (int n = 0; n < 300000; ++n) {
    const uint64_t bits = nextRandom(state);
    double v;
    if (n % 2 == 0) {
      std::memcpy(&v, &bits, sizeof v);
      if (std::isnan(v)) continue;  // printf's sign of a NaN is the library's own
    } else {
      const int64_t digits = static_cast<int64_t>(bits % 10000000);
      v = (static_cast<double>(digits) + 0.5) * std::pow(10.0, static_cast<int>((bits >> 40) % 80) - 40);
    }
    ASSERT_EQ(formatted(formatGeneral6, v), formatted(formatGeneral6ByPrintf, v)) << v;
  }
}

template <typename Number>
std::string shortest(int (*format)(char*, int, Number), Number value) {
  char text[32];
  const int length = format(text, sizeof text, value);
  EXPECT_EQ(length, static_cast<int>(std::strlen(text)));
  return text;
}

// The shortest texts of the export writers: any bit pattern, powers of two
// (where the values that read back lie unevenly about the value), whole
// numbers (where the fixed form wins), for doubles and floats.
TEST(FloatText, BothShortestFormatsGiveTheSameText) {
  int (*const doubleNative)(char*, int, double) = formatShortest;
  int (*const doubleFallback)(char*, int, double) = formatShortestByPrintf;
  int (*const floatNative)(char*, int, float) = formatShortest;
  int (*const floatFallback)(char*, int, float) = formatShortestByPrintf;
  uint64_t state = 0x853c49e6748fea9bull;
  for (int n = 0; n < 60000; ++n) {
    const uint64_t bits = nextRandom(state);
    double d;
    switch (n % 4) {
      case 0: std::memcpy(&d, &bits, sizeof d); break;
      case 1: d = std::ldexp(1.0, static_cast<int>(bits % 2000) - 1000); break;
      case 2: d = static_cast<double>(static_cast<int64_t>(bits % 100000000) - 50000000) * std::pow(10.0, static_cast<int>(bits >> 58) - 8); break;
      default: d = static_cast<double>(bits % 1000) / 8.0 - 60.0; break;
    }
    if (!std::isfinite(d)) continue;
    ASSERT_EQ(shortest(doubleNative, d), shortest(doubleFallback, d)) << d;
    float f;
    const uint32_t fbits = static_cast<uint32_t>(bits >> 32);
    if (n % 2 == 0) {
      std::memcpy(&f, &fbits, sizeof f);
    } else {
      f = static_cast<float>(d);
    }
    if (!std::isfinite(f)) continue;
    ASSERT_EQ(shortest(floatNative, f), shortest(floatFallback, f)) << f;
  }
}

// Decimal texts as the lexer hands them over: long mantissas, halfway cases
// between two doubles, exponents near both ends of the range.
TEST(FloatText, BothParsersGiveTheSameValues) {
  const char* chosen[] = {"0", "0.0", "1", "0.1", "2.2250738585072011e-308", "4.9406564584124654e-324",
                          "1.7976931348623157e308", "9007199254740993", "9007199254740992.5",
                          "0.30000000000000004440892098500626161694526672363281250000001",
                          "123456789012345678901234567890", "1e-400", "1e400", "2.4703282292062328e-324"};
  for (const char* text : chosen) {
    double a = -1, b = -1;
    const char* end = text + std::strlen(text);
    const bool okA = parseDecimalText(text, end, &a);
    const bool okB = parseDecimalTextByStrtod(text, end, &b);
    EXPECT_EQ(okA, okB) << text;
    if (okA && okB) {
      EXPECT_EQ(std::memcmp(&a, &b, sizeof a), 0) << text;
    }
  }
  uint64_t state = 0x2545f4914f6cdd1dull;
  char text[64];
  for (int n = 0; n < 300000; ++n) {
    const uint64_t bits = nextRandom(state);
    if (n % 2 == 0) {
      double v;
      std::memcpy(&v, &bits, sizeof v);
      if (!std::isfinite(v)) continue;
      std::snprintf(text, sizeof text, "%.*e", static_cast<int>(bits % 20), std::fabs(v));
    } else {
      std::snprintf(text, sizeof text, "%llu.%llu5e%d", static_cast<unsigned long long>(bits >> 20),
                    static_cast<unsigned long long>(bits % 100000), static_cast<int>(bits % 600) - 300);
    }
    double a = -1, b = -1;
    const char* end = text + std::strlen(text);
    const bool okA = parseDecimalText(text, end, &a);
    const bool okB = parseDecimalTextByStrtod(text, end, &b);
    ASSERT_EQ(okA, okB) << text;
    if (okA) {
      ASSERT_EQ(std::memcmp(&a, &b, sizeof a), 0) << text;
    }
  }
}

TEST(FloatText, TextsThatAreNotOneNumberAreRefused) {
  const char* refused[] = {"", "1.5x", "--1", "1e"};
  for (const char* text : refused) {
    double v = 0;
    const char* end = text + std::strlen(text);
    EXPECT_FALSE(parseDecimalText(text, end, &v)) << text;
    EXPECT_FALSE(parseDecimalTextByStrtod(text, end, &v)) << text;
  }
}

}  // namespace
}  // namespace lumeric
