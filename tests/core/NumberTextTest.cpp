#include "core/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>

namespace lumeric {
namespace {

std::string viaPrintf(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string viaFormat(double value) {
  char text[kNumberTextSize];
  int length = formatNumber(text, value);
  EXPECT_EQ(length, static_cast<int>(std::strlen(text)));
  return text;
}

TEST(NumberText, ChosenValuesMatchPrintf) {
  const double values[] = {0.0,       -0.0,       1.0,        -1.0,        0.1,         1e-7,       3.14159265,
                           1234567,   1234565,    1234575,    999999.5,    999999.4,    0.0001,     0.00001,
                           0.000099999949, 1.2346000000000001, 100000, 1e6, 1e15, 1e16, 123456789012345.0,
                           1e-5,      9.99999e-5, 2.5e-5,     0.785398185, 1e300,       -1e-300,    5e-324,
                           std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                           std::nan(""), 0.5,     12345.65,   0.12345650000000001};
  for (double v : values) EXPECT_EQ(viaFormat(v), viaPrintf(v)) << v;
}

TEST(NumberText, RandomValuesOfEveryScaleMatchPrintf) {
  uint64_t state = 88172645463325252ull;
  for (int n = 0; n < 1000000; ++n) {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    double v;
    switch (n % 3) {
      case 0: {  // any bit pattern
        std::memcpy(&v, &state, sizeof v);
        break;
      }
      case 1: {  // numbers as scenes have them, rounded to a step
        double raw = static_cast<double>(static_cast<int64_t>(state % 2000000000) - 1000000000) / 1000.0;
        v = std::round(raw / 0.0001) * 0.0001;
        break;
      }
      default: {  // decimal ties and near-ties at six digits
        int64_t digits = static_cast<int64_t>(state % 10000000);
        int scale = static_cast<int>((state >> 40) % 30) - 15;
        v = static_cast<double>(digits) * std::pow(10.0, scale) + (digits % 2 ? 0.5 : 0.0) * std::pow(10.0, scale);
        break;
      }
    }
    ASSERT_EQ(viaFormat(v), viaPrintf(v)) << std::hexfloat << v;
  }
}

TEST(NumberText, IntegersAsPrintfD) {
  char text[kNumberTextSize];
  for (long v : {0L, -3L, 2147483647L, -2147483648L}) {
    formatInteger(text, v);
    char expected[32];
    std::snprintf(expected, sizeof expected, "%ld", v);
    EXPECT_STREQ(text, expected);
  }
}

}  // namespace
}  // namespace lumeric
