#include "expr/TermOperators.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "expr/ExpressionFixture.h"
#include "expr/LiteralBuilding.h"
#include "expr/ParseErrors.h"
#include "expr/TermConversions.h"
#include "expr/TermKernels.h"

namespace lumeric {
namespace {

class TermOperatorsTest : public ExpressionFixture {
 protected:
  static VectorTerm* vector(std::initializer_list<double> values) {
    VectorTerm* v = VectorTerm::make(static_cast<int32_t>(values.size()));
    int k = 0;
    for (double x : values) v->elements[k++] = x;
    return v;
  }
  static MatrixTerm* matrix(int rows, int cols, std::initializer_list<double> values) {
    MatrixTerm* m = MatrixTerm::make(rows, cols);
    int k = 0;
    for (double x : values) m->elements[k++] = x;
    return m;
  }
  FieldExpression* at() { return expression("x"); }
};

// Empty operands cannot be written as literals but come from empty fields.
TEST_F(TermOperatorsTest, KernelsRefuseEmptyOperands) {
  VectorTerm* empty = VectorTerm::make(0);
  MatrixTerm* noRows = MatrixTerm::make(0, 3);
  EXPECT_EQ(addScalarToVector(1, empty, at()), nullptr);
  EXPECT_EQ(addScalarToMatrix(1, noRows, at()), nullptr);
  EXPECT_EQ(scaleVector(2, empty, at()), nullptr);
  EXPECT_EQ(scaleMatrix(2, noRows, at()), nullptr);
  EXPECT_EQ(addVectors(empty, empty, at()), nullptr);
  EXPECT_EQ(multiplyVectors(empty, empty, at()), nullptr);
  EXPECT_EQ(addMatrices(noRows, noRows, at()), nullptr);
  EXPECT_EQ(multiplyMatrices(noRows, matrix(3, 1, {1, 2, 3}), at()), nullptr);
  EXPECT_EQ(takeMessages(), (std::vector<std::string>{
                                "Cannot add a scaler to a 0 length vector",
                                "Cannot add a scaler to a 0 x 3 matrix",
                                "Cannot multiply a 0 length vector by a scaler",
                                "Cannot multiply a 0 x 3 matrix by a scaler",
                                "Cannot add a 0 length vector to a 0 length vector",
                                "Cannot multiply a 0 length vector by a 0 length vector",
                                "Cannot add a 0 x 3 matrix to a 0 by 3 matrix",
                                "Cannot multiply a 0 x 3 matrix by a 3 by 1 matrix",
                            }));
}

TEST_F(TermOperatorsTest, SubtractingFromEmptyFailsInTheInnerKernel) {
  EXPECT_EQ(subtractTerms(ScalarTerm::make(1), VectorTerm::make(0), at()), nullptr);
  EXPECT_EQ(negateTerm(MatrixTerm::make(2, 0), at()), nullptr);
  EXPECT_EQ(takeMessages(), (std::vector<std::string>{"Cannot multiply a 0 length vector by a scaler",
                                                      "Cannot multiply a 2 x 0 matrix by a scaler"}));
}

TEST_F(TermOperatorsTest, MatrixProductSumsInOrder) {
  MatrixTerm* row = matrix(1, 3, {1, 2, 3});
  MatrixTerm* column = matrix(3, 1, {4, 5, 6});
  EXPECT_EQ(describeTerm(multiplyMatrices(row, column, at())), "matrix (32)");
  EXPECT_EQ(describeTerm(multiplyMatrices(column, row, at())), "matrix (4,8,12;5,10,15;6,12,18)");
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

TEST_F(TermOperatorsTest, OperandsAreNotChanged) {
  VectorTerm* a = vector({1, 2});
  VectorTerm* b = vector({3, 4});
  EXPECT_EQ(describeTerm(subtractTerms(a, b, at())), "vector (-2,-2)");
  EXPECT_EQ(describeTerm(negateTerm(a, at())), "vector (-1,-2)");
  EXPECT_EQ(describeTerm(a), "vector (1,2)");
  EXPECT_EQ(describeTerm(b), "vector (3,4)");
}

TEST_F(TermOperatorsTest, TruthOfSpecialValues) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(isTrue(nan));
  EXPECT_FALSE(isTrue(-0.0));
  EXPECT_EQ(describeTerm(notTerm(ScalarTerm::make(nan), at())), "scalar 0");
  EXPECT_EQ(describeTerm(andTerms(ScalarTerm::make(nan), ScalarTerm::make(-0.0), at())), "scalar 0");
  EXPECT_EQ(describeTerm(orTerms(ScalarTerm::make(0.0), ScalarTerm::make(nan), at())), "scalar 1");
}

TEST_F(TermOperatorsTest, ConditionalGivesTheBranchItself) {
  Term* yes = vector({1});
  Term* no = ScalarTerm::make(2);
  EXPECT_EQ(chooseTerm(ScalarTerm::make(0.5), yes, no, at()), yes);
  EXPECT_EQ(chooseTerm(ScalarTerm::make(0.0), yes, no, at()), no);
}

TEST_F(TermOperatorsTest, ConvertsCoordinates) {
  EXPECT_EQ(describeTerm(convertTo3D(vector({2, 4, 6, 2}), at())), "vector (1,2,3)");
  EXPECT_EQ(describeTerm(convertTo3D(vector({1, 2, 3, 1}), at())), "vector (1,2,3)");
  EXPECT_EQ(describeTerm(convertTo3D(vector({1, -2, 0, 0}), at())), "vector (1e+15,-1e+15,1e+15)");
  EXPECT_EQ(describeTerm(convertTo3D(vector({-0.0, 1, 2, -0.0}), at())), "vector (-1e+15,1e+15,1e+15)");
  EXPECT_EQ(describeTerm(convertTo4D(vector({1, 2, 3}), at())), "vector (1,2,3,1)");
  EXPECT_EQ(describeTerm(convertTo4D(matrix(2, 3, {1, 2, 3, 4, 5, 6}), at())), "matrix (1,2,3,1;4,5,6,1)");
  EXPECT_EQ(describeTerm(convertTo3D(matrix(2, 4, {2, 4, 6, 2, 1, 1, 1, 0}), at())),
            "matrix (1,2,3;1e+15,1e+15,1e+15)");
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});

  EXPECT_EQ(convertTo4D(vector({1, 2}), at()), nullptr);
  EXPECT_EQ(convertTo3D(vector({1, 2, 3}), at()), nullptr);
  EXPECT_EQ(convertTo4D(matrix(1, 4, {1, 2, 3, 4}), at()), nullptr);
  EXPECT_EQ(convertTo3D(matrix(1, 2, {1, 2}), at()), nullptr);
  EXPECT_EQ(takeMessages(), (std::vector<std::string>{
                                "Cannot convert a 2D vector to a 4D vector",
                                "Cannot convert a 3D vector to a 3D vector",
                                "Cannot convert a 4D matrix to a 4D matrix",
                                "Cannot convert a 2D matrix to a 3D matrix",
                            }));
}

TEST_F(TermOperatorsTest, IndicesTruncateTowardZeroAndSaturate) {
  struct Case {
    double value;
    int index;
  };
  const Case cases[] = {
      {1.9, 1}, {-0.5, 0}, {-1.5, -1}, {1e300, INT_MAX}, {-1e300, INT_MIN},
      {std::numeric_limits<double>::quiet_NaN(), INT_MIN},
  };
  for (const Case& c : cases) {
    int index = 12345;
    EXPECT_TRUE(indexFromTerm(ScalarTerm::make(c.value), &index));
    EXPECT_EQ(index, c.index) << c.value;
  }
  int index = 7;
  EXPECT_FALSE(indexFromTerm(vector({1}), &index));
  EXPECT_FALSE(indexFromTerm(StringTerm::make("1"), &index));
  EXPECT_EQ(index, 7);
}

TEST_F(TermOperatorsTest, VectorsGrowInPlace) {
  Term* list = vector({1, 2});
  EXPECT_EQ(appendToVector(list, ScalarTerm::make(3), at()), list);
  EXPECT_EQ(appendToVector(list, list, at()), list);
  EXPECT_EQ(describeTerm(list), "vector (1,2,3,1,2,3)");
  Term* table = appendMatrixRow(vector({1, 2}), vector({3, 4}), at());
  EXPECT_EQ(appendMatrixRow(table, vector({5, 6}), at()), table);
  EXPECT_EQ(describeTerm(table), "matrix (1,2;3,4;5,6)");
}

// The expected-token list stops growing once the text passes 229
// characters; the message always fits its 256-character buffer.
TEST_F(TermOperatorsTest, LongExpectedListsAreCut) {
  std::vector<int> expected(60, 273);
  reportSyntaxError(at(), 0, expected.data(), static_cast<int>(expected.size()));
  std::vector<std::string> messages = takeMessages();
  ASSERT_EQ(messages.size(), 1u);
  const std::string& text = messages[0];
  EXPECT_EQ(text.compare(0, 50, "Syntax error: found [end of file] - expecting: NUM"), 0);
  EXPECT_GT(text.size(), 229u);
  EXPECT_LT(text.size(), 256u);
  EXPECT_LE(text.size() - std::string(" or NUMBER").size(), 229u);
  EXPECT_EQ(text.substr(text.size() - 10), " or NUMBER");
}

}  // namespace
}  // namespace lumeric
