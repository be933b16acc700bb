#include "expr/TermConversions.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace lumeric {
namespace {

TEST(TruncationTest, IndicesAndWrittenIntegersSaturateAndDifferOnlyInNaN) {
  const double inf = std::numeric_limits<double>::infinity();
  struct Case {
    double value;
    int index;
    int integer;
  };
  const Case cases[] = {
      {2.9, 2, 2},
      {-2.9, -2, -2},
      {-0.5, 0, 0},
      {1e10, INT_MAX, INT_MAX},
      {-1e10, INT_MIN, INT_MIN},
      {inf, INT_MAX, INT_MAX},
      {-inf, INT_MIN, INT_MIN},
      {std::nan(""), INT_MIN, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(truncateToIndex(c.value), c.index) << c.value;
    EXPECT_EQ(truncateToInt(c.value), c.integer) << c.value;
  }
}

}  // namespace
}  // namespace lumeric
