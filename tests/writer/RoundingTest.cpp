// Rounding to the PRECISION step never turns a finite number into an
// infinite one.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "core/LastingState.h"
#include "writer/SceneWriter.h"

namespace lumeric {
namespace {

class Rounding : public ::testing::Test {
 protected:
  void TearDown() override { precisionQuantum = saved_; }

 private:
  double saved_ = precisionQuantum;
};

TEST_F(Rounding, KeepsValuesTooLargeForTheStep) {
  struct {
    double quantum, value, expected;
  } cases[] = {
      {0.0001, 1.23456, 1.2346},
      {0.0001, -1.23455, -1.2346},
      {0.5, 1.3, 1.5},
      {0, 1.23456, 1.23456},
      {0.0001, 1e308, 1e308},
      {0.0001, -1e308, -1e308},
      {0.0001, DBL_MAX, DBL_MAX},
      {1e-300, 1e30, 1e30},
      {0.5, DBL_MAX, DBL_MAX},
  };
  for (const auto& c : cases) {
    precisionQuantum = c.quantum;
    EXPECT_DOUBLE_EQ(roundToPrecision(c.value), c.expected) << c.quantum << " " << c.value;
  }
}

TEST_F(Rounding, NonFiniteValuesStayWhatTheyAre) {
  precisionQuantum = 0.0001;
  EXPECT_TRUE(std::isinf(roundToPrecision(INFINITY)));
  EXPECT_TRUE(std::isnan(roundToPrecision(NAN)));
}

}  // namespace
}  // namespace lumeric
