#include "expr/MatrixSolver.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "expr/ExpressionFixture.h"

namespace lumeric {
namespace {

class MatrixSolverTest : public ExpressionFixture {
 protected:
  static MatrixTerm* matrix(int rows, int cols, std::vector<double> values) {
    MatrixTerm* m = MatrixTerm::make(rows, cols);
    for (size_t k = 0; k < values.size(); ++k) m->elements[k] = values[k];
    return m;
  }
  double determinant(MatrixTerm* m) {
    Term* result = determinantOf(m, expression("det"));
    EXPECT_NE(asScalar(result), nullptr);
    return asScalar(result) != nullptr ? asScalar(result)->value : -999;
  }
};

TEST_F(MatrixSolverTest, Determinants) {
  struct Case {
    int n;
    std::vector<double> values;
    double determinant;
  };
  const Case cases[] = {
      {1, {5}, 5},
      {1, {0}, 0},
      {2, {1, 0, 0, 1}, 1},
      {2, {1, 2, 3, 4}, -2},
      {2, {0, 1, 1, 0}, -1},
      {3, {2, 0, 0, 0, 3, 0, 0, 0, 4}, 24},
      {3, {0, 2, 1, 1, 0, 0, 0, 0, 3}, -6},
      {3, {1, 0, 2, 2, 0, 5, 3, 0, 1}, 0},  // a zero column: singular, no message
      {4, {1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 5, 6, 0, 0, 7, 8}, 4},
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(determinant(matrix(c.n, c.n, c.values)), c.determinant, 1e-12) << c.n;
  }
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

TEST_F(MatrixSolverTest, DeterminantLeavesItsOperandAlone) {
  MatrixTerm* m = matrix(2, 2, {1, 2, 3, 4});
  determinant(m);
  EXPECT_EQ(describeTerm(m), "matrix (1,2;3,4)");
}

TEST_F(MatrixSolverTest, NearlySingularDeterminantIsReported) {
  EXPECT_EQ(determinant(matrix(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9})), 0);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot compute the determinate of singular matrix"});
}

TEST_F(MatrixSolverTest, RefusesNonSquareShapes) {
  EXPECT_EQ(determinantOf(matrix(2, 3, {}), expression("det")), nullptr);
  EXPECT_EQ(inverseOf(matrix(2, 3, {}), expression("inv")), nullptr);
  EXPECT_EQ(inverseOf(MatrixTerm::make(0, 0), expression("inv")), nullptr);
  EXPECT_EQ(takeMessages(), (std::vector<std::string>{"Cannot compute the determinate of a 2 x 3 matrix",
                                                      "Cannot compute the inverse of a 2 x 3 matrix",
                                                      "Cannot compute the inverse of a 0 x 0 matrix"}));
}

TEST_F(MatrixSolverTest, SingularInverseIsReportedAndZero) {
  MatrixTerm* inverse = inverseOf(matrix(2, 2, {1, 2, 2, 4}), expression("inv"));
  ASSERT_NE(inverse, nullptr);
  EXPECT_EQ(describeTerm(inverse), "matrix (0,0;0,0)");
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Cannot compute the inverse of a matrix"});
}

// A product with the inverse gives the identity; the decomposition's pivot
// sign and condition estimate behave on random well-conditioned matrices.
TEST_F(MatrixSolverTest, InverseOfRandomMatrices) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> value(-1.0, 1.0);
  for (int n = 1; n <= 6; ++n) {
    MatrixTerm* m = MatrixTerm::make(n, n);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) m->at(i, j) = value(random) + (i == j ? n : 0);
    }
    MatrixTerm* inverse = inverseOf(m, expression("inv"));
    ASSERT_NE(inverse, nullptr);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) {
        double sum = 0;
        for (int k = 0; k < n; ++k) sum += m->at(i, k) * inverse->at(k, j);
        EXPECT_NEAR(sum, i == j ? 1.0 : 0.0, 1e-12) << n;
      }
    }
  }
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

TEST_F(MatrixSolverTest, DecompositionRecordsInterchanges) {
  std::vector<double> a = {0, 1, 0, 0, 0, 1, 1, 0, 0};  // a cyclic permutation: two interchanges
  std::vector<int> pivot(3);
  double condition = 0;
  ASSERT_TRUE(luDecompose(3, a.data(), pivot.data(), &condition));
  EXPECT_EQ(pivot[2], 1);
  EXPECT_EQ(condition, 1.0);
  std::vector<double> b = {1, 2, 3};
  ASSERT_TRUE(luSolve(3, a.data(), pivot.data(), b.data()));
  EXPECT_EQ(b, (std::vector<double>{3, 1, 2}));
  std::vector<double> singular = {1, 1, 1, 1};
  EXPECT_FALSE(luDecompose(2, singular.data(), pivot.data(), &condition));
}

}  // namespace
}  // namespace lumeric
