#include "expr/functions/FractalSurfaces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/RunState.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionFixture.h"
#include "expr/functions/RandomGenerator.h"

namespace lumeric {
namespace {

// Each test starts the generator from 1, as at library start, and leaves
// the state as it found it.
class FractalSurfacesTest : public ExpressionFixture {
 protected:
  void SetUp() override {
    ExpressionFixture::SetUp();
    saved_ = randomState();
    setRandomState(1);
  }
  void TearDown() override {
    setRandomState(saved_);
    ExpressionFixture::TearDown();
  }

  MatrixTerm* points(const char* text) {
    MatrixTerm* m = asMatrix(evaluateTerm(expression(text)));
    EXPECT_NE(m, nullptr) << text;
    EXPECT_EQ(takeMessages(), std::vector<std::string>{}) << text;
    return m;
  }

 private:
  uint32_t saved_ = 1;
};

TEST_F(FractalSurfacesTest, FirstRandomValue) {
  ScalarTerm* r = asScalar(evaluateTerm(expression("rand()")));
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->value, 41 * 3.051850947599719e-05);
  EXPECT_EQ(nextRandom(), 18467);
  EXPECT_EQ(nextRandom(), 6334);
}

TEST_F(FractalSurfacesTest, SeededSurfacePointByPoint) {
  // Computed independently from the drawing rules: the centre takes seed 1,
  // the four quarter centres seed 2, and four draws fill the rest.
  const double expected[25][3] = {
      {0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {0, 0, 3}, {0, 0, 4},
      {1, 0, 0}, {1, 2, 1}, {1, 0.5636025148019288, 2}, {1, 2, 3}, {1, 0, 4},
      {2, 0, 0}, {2, 0.0012512970762375564, 1}, {2, 1, 2}, {2, 0.19331013855826162, 3}, {2, 0, 4},
      {3, 0, 0}, {3, 2, 1}, {3, 0.8087651834218397, 2}, {3, 2, 3}, {3, 0, 4},
      {4, 0, 0}, {4, 0, 1}, {4, 0, 2}, {4, 0, 3}, {4, 0, 4},
  };
  MatrixTerm* m = points("FractalSurfaceData(5, 5, 1, (1,2,3,4,5,6))");
  ASSERT_NE(m, nullptr);
  ASSERT_EQ(m->rows, 25);
  ASSERT_EQ(m->cols, 3);
  for (int i = 0; i < 25; ++i) {
    for (int j = 0; j < 3; ++j) EXPECT_DOUBLE_EQ(m->at(i, j), expected[i][j]) << "point " << i << " [" << j << "]";
  }
  EXPECT_EQ(randomState(), 3884216597u);
}

TEST_F(FractalSurfacesTest, BorderOnlyAndSeededSurfacesDrawNothing) {
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(2, 2, 5)")), "matrix (0,0,0;0,0,1;1,0,0;1,0,1)");
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(3.9, 3, 1, (7,8))")),
            "matrix (0,0,0;0,0,1;0,0,2;1,0,0;1,7,1;1,0,2;2,0,0;2,0,1;2,0,2)");
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(1, 4, 1)")), "matrix (0,0,0;0,0,1;0,0,2;0,0,3)");
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(0, 4, 1)")), "matrix ()");
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(-2, -4, 1)")), "matrix ()");
  EXPECT_EQ(randomState(), 1u);
  // Without roughness the centre still draws, but its displacement is 0.
  EXPECT_EQ(describeTerm(points("FractalSurfaceData(3, 3, 0)")),
            "matrix (0,0,0;0,0,1;0,0,2;1,0,0;1,0,1;1,0,2;2,0,0;2,0,1;2,0,2)");
  EXPECT_NE(randomState(), 1u);
}

TEST_F(FractalSurfacesTest, UnsetMarkerFollowsThePrecision) {
  // With rounding at 1 the marker is 0.1: a seed of 0.1 counts as unset and
  // is drawn over.
  const double savedQuantum = precisionQuantum;
  precisionQuantum = 1.0;
  MatrixTerm* m = points("FractalSurfaceData(3, 3, 0, (0.1,8))");
  precisionQuantum = savedQuantum;
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(m->at(4, 1), 0.0);
  EXPECT_NE(randomState(), 1u);
}

TEST_F(FractalSurfacesTest, IndexLists) {
  const struct {
    const char* text;
    const char* result;
  } cases[] = {
      {"FractalSurfaceIndex(3, 3)", "vector (0,1,4,3,-1,1,2,5,4,-1,3,4,7,6,-1,4,5,8,7,-1)"},
      {"FractalSurfaceIndex(2, 3.5)", "vector (0,1,4,3,-1,1,2,5,4,-1)"},
      {"FractalSurfaceIndex(1, 5)", "vector ()"},
      {"FractalSurfaceIndex(-1, -1)", "vector ()"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(describeTerm(evaluateTerm(expression(c.text))), c.result) << c.text;
    EXPECT_EQ(takeMessages(), std::vector<std::string>{}) << c.text;
  }
}

TEST_F(FractalSurfacesTest, HugeGridsAreRefused) {
  EXPECT_EQ(evaluateTerm(expression("FractalSurfaceData(100000, 100000, 1)")), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot make a fractal surface of 100000 by 100000 points"});
  EXPECT_EQ(evaluateTerm(expression("FractalSurfaceIndex(1e6, 1e6)")), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot make a fractal surface of 1000000 by 1000000 points"});
  // Thin grids are refused by their longer side: their subdivision costs
  // the square of that side.
  EXPECT_EQ(evaluateTerm(expression("FractalSurfaceData(524370, 6, .5)")), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot make a fractal surface of 524370 by 6 points"});
  EXPECT_EQ(evaluateTerm(expression("FractalSurfaceData(3, 4097, 1)")), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot make a fractal surface of 3 by 4097 points"});
  EXPECT_NE(evaluateTerm(expression("FractalSurfaceData(4096, 2, 1)")), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

}  // namespace
}  // namespace lumeric
