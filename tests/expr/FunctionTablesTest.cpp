#include "expr/FunctionCalls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionFixture.h"
#include "expr/functions/FunctionLookup.h"
#include "expr/functions/FunctionTables.h"
#include "expr/functions/NameCase.h"

namespace lumeric {
namespace {

struct Case {
  const char* text;
  const char* result;                 // describeTerm of the value ("none" when it failed)
  std::vector<std::string> messages;  // without the line prefix
};

class FunctionTablesTest : public ExpressionFixture {
 protected:
  void check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
      Term* result = evaluateTerm(expression(c.text));
      // A failure must be a failure of the evaluation, not merely no value.
      EXPECT_EQ(theContext.parseStatus, result == nullptr ? 1 : 0) << c.text;
      EXPECT_EQ(describeTerm(result), c.result) << c.text;
      EXPECT_EQ(takeMessages(), c.messages) << c.text;
    }
  }
  double valueOf(const char* text) {
    ScalarTerm* scalar = asScalar(evaluateTerm(expression(text)));
    EXPECT_NE(scalar, nullptr) << text;
    return scalar != nullptr ? scalar->value : 0.0;
  }
};

TEST_F(FunctionTablesTest, Units) {
  check({
      {"1'ft", "scalar 0.3048", {}},
      {"1'YD", "scalar 0.9144", {}},
      {"100'in", "scalar 2.54", {}},
      {"250'cm", "scalar 2.5", {}},
      {"3'm + 2'Rad", "scalar 5", {}},
      {"2'km", "scalar 2", {"Conversion km not found"}},
      {"\"a\"'deg", "string \"a\"", {"Conversion deg not found"}},
  });
  EXPECT_EQ(valueOf("90'deg"), 3.141592653589793 / 2);
  EXPECT_EQ(valueOf("200'grad"), 200 * 0.015707963267948967);
}

TEST_F(FunctionTablesTest, NamesIgnoreCaseAndCountsChooseTheFunction) {
  check({
      {"PI()", "scalar 3.14159", {}},
      {"pi()", "scalar 3.14159", {}},
      {"E()", "scalar 2.71828", {}},
      {"SIN(pi()/2)", "scalar 1", {}},
      {"scale(2)", "matrix (1,0,0,0;0,1,0,0;0,0,1,0;0,0,0,2)", {}},
      {"SCALE(1,2,3)", "matrix (1,0,0,0;0,2,0,0;0,0,3,0;0,0,0,1)", {}},
  });
}

TEST_F(FunctionTablesTest, NotFoundMessagesByCount) {
  check({
      {"sin()", "none", {"Function sin() not found"}},
      {"sin((1,2))", "none", {"Function sin(...) not found"}},
      {"det((1,2,3))", "none", {"Function det(...) not found"}},
      {"Color(1)", "none", {"Function Color(...) not found"}},
      {"atan2(1,(1,2))", "none", {"Function atan2(...) not found"}},
      {"PointAt((1,2,3),(1,2,3),(1,2,3))", "none", {"Function PointAt(...) not found"}},
      {"FractalSurfaceData(3,3,1,(7))", "none", {"Function FractalSurfaceData(...) not found"}},
      {"Center((1,2),2,3,4,5,6)", "none", {}},
      {"Rotate(1,2,3,4,5,6,7,8,9,10,11,(1,2))", "none", {}},
  });
}

TEST_F(FunctionTablesTest, ElementaryFunctions) {
  check({
      {"acos(1) + asin(0) + atan(0)", "scalar 0", {}},
      {"cos(0) + cosh(0)", "scalar 2", {}},
      {"exp(1)", "scalar 2.71828", {}},
      {"fabs(-2) + abs(-3)", "scalar 5", {}},
      {"ln(exp(2)) + log(1)", "scalar 2", {}},
      {"log10(1000)", "scalar 3", {}},
      {"sinh(0) + tan(0) + tanh(0)", "scalar 0", {}},
      {"sqrt(16)", "scalar 4", {}},
      {"ceil(1.2) + floor(-1.2)", "scalar 0", {}},
      {"log(0)", "none", {"Cannot compute the log of 0"}},
      {"ln(-1)", "none", {"Cannot compute the log of -1"}},
      {"log10(-0.5)", "none", {"Cannot compute the log10 of -0.5"}},
      {"pow(2,10)", "scalar 1024", {}},
      {"hypot(3,4)", "scalar 5", {}},
      {"fmod(7,3) + mod(-7,3)", "scalar 0", {}},
      {"max(1,1) + min(1,1)", "scalar 2", {}},
      {"max(1,2) + min(1,2)", "scalar 3", {}},
      {"atan2(0,0)", "scalar 0", {}},
      {"atan2(1,-1)", "scalar 2.35619", {}},
      {"atan2(1,0)", "none", {"Error: Cannot compute atan2 of 1 and 0"}},
      {"dist(0,0,3,4)", "scalar 5", {}},
      {"dist(1,1,1,3,3,2)", "scalar 3", {}},
      {"Center(0,0,0,2,4,6)", "vector (1,2,3)", {}},
  });
  EXPECT_TRUE(std::isnan(valueOf("fmod(5,0)")));
  EXPECT_TRUE(std::isnan(valueOf("sqrt(-1)")));
}

TEST_F(FunctionTablesTest, RoundGoesDownForNegativeQuotients) {
  check({
      {"round(7,5)", "scalar 5", {}},
      {"round(8,5)", "scalar 10", {}},
      {"round(7.5,5)", "scalar 10", {}},
      {"round(-2.2,1)", "scalar -3", {}},
      {"round(-2.7,1)", "scalar -3", {}},
      {"round(0.26,0.1)", "scalar 0.3", {}},
      {"round(3.3,0)", "scalar 3.3", {}},
      {"round(3.3,-1)", "scalar 3.3", {}},
  });
}

TEST_F(FunctionTablesTest, MatrixFunctions) {
  check({
      {"det((1,2);(3,4))", "scalar -2", {}},
      {"DETERMINATE((2,0);(0,3))", "scalar 6", {}},
      {"det((1,2,3);(4,5,6))", "none", {"Cannot take the determinate of a 2 by 3 matrix"}},
      {"Inverse((4,7);(2,6))", "matrix (0.6,-0.7;-0.2,0.4)", {}},
      {"Transpose((1,2,3))", "matrix (1;2;3)", {}},
      {"Transpose((1,2);(3,4))", "matrix (1,3;2,4)", {}},
      {"Convert3D((2,4,6,2);(1,2,3,1))", "matrix (1,2,3;1,2,3)", {}},
      {"Convert4D((1,2,3))", "vector (1,2,3,1)", {}},
  });
}

TEST_F(FunctionTablesTest, TransformBuilders) {
  check({
      {"Translate(1,2,3)", "matrix (1,0,0,0;0,1,0,0;0,0,1,0;1,2,3,1)", {}},
      {"((0,0,0,1);(1,1,1,1)) * Translate(1,2,3)", "matrix (1,2,3,1;2,3,4,1)", {}},
      {"((1,1,1,1);(0,0,0,1)) * Scale(2,3,4)", "matrix (2,3,4,1;0,0,0,1)", {}},
      {"XYReflect()", "matrix (1,0,0,0;0,1,0,0;0,0,-1,0;0,0,0,1)", {}},
      {"YZReflect()", "matrix (-1,0,0,0;0,1,0,0;0,0,1,0;0,0,0,1)", {}},
      {"XZReflect()", "matrix (1,0,0,0;0,-1,0,0;0,0,1,0;0,0,0,1)", {}},
      // Quarter turns: y goes to z about x, z to x about y, x to y about z.
      {"((0,1,0,1);(0,0,0,1)) * XRotate(pi()/2)", "matrix (0,6.12323e-17,1,1;0,0,0,1)", {}},
      {"((0,0,1,1);(0,0,0,1)) * YRotate(pi()/2)", "matrix (1,0,6.12323e-17,1;0,0,0,1)", {}},
      {"((1,0,0,1);(0,0,0,1)) * ZRotate(pi()/2)", "matrix (6.12323e-17,1,0,1;0,0,0,1)", {}},
      {"Convert3D(((2,4,6,1);(0,0,0,1)) * scale(2))", "matrix (1,2,3;0,0,0)", {}},
  });
}

TEST_F(FunctionTablesTest, RotateOrientations) {
  check({
      {"Rotate(1,0,0,0,1,0)", "vector (0,0,1,1.5708)", {}},
      {"Rotate(1,0,0,2,0,0)", "vector (0,0,0,0)", {}},
      {"Rotate(0,0,0,0,1,0)", "vector (0,0,1,0)", {"No direction specificed"}},
      {"Rotate((1,1,1),(2,1,1),(5,5,5),(5,6,5))", "vector (0,0,1,1.5708)", {}},
      {"Rotate(1,1,1, 2,1,1, 5,5,5, 5,5,6)", "vector (0,-1,0,1.5708)", {}},
      {"Rotate((1,1),(2,1,1),(5,5,5),(5,6,5))", "none",
       {"Rotate(vector,vector,vector,vector) can only be used with vectors of three elements"}},
  });
}

TEST_F(FunctionTablesTest, PointAtWithGivenEye) {
  check({
      {"PointAt(0,0,0, 0,0,-5)", "vector (0,1,0,0)", {}},
      {"PointAt(0,0,0, 5,0,0)", "vector (0,-1,0,1.5708)", {}},
      {"PointAt((1,1,1),(1,1,-3))", "vector (0,1,0,0)", {}},
      // Looking back along +z: a half turn about y.
      {"PointAt(0,0,0, 0,0,5)", "vector (0,1,0,3.14159)", {}},
      // Straight up: the up vector is parallel, so +x serves as up instead.
      {"PointAt(0,0,0, 0,5,0)", "vector (0.57735,0.57735,-0.57735,2.0944)", {}},
      {"PointAt(1,2,3, 1,2,3)", "vector (0,1,0,0)", {"No direction specificed"}},
      {"PointAt((1,2),(1,2,3))", "none", {"PointAt(vector,vector) can only be used with vectors of three elements"}},
      // No owner, so no "position" field.
      {"PointAt((1,2,3))", "none",
       {"Local Field position not found", "PointAt(point) requires the 3D value for point"}},
      {"PointAt((1,2))", "none", {"PointAt(vector) can only be used with a vector with three elements"}},
  });
}

TEST_F(FunctionTablesTest, ColoursAndInterpolation) {
  check({
      {"Color(\"red\")", "vector (1,0,0)", {}},
      {"Color(\"RED\")", "vector (1,0,0)", {}},
      {"Color(\"LightGray\") + Color(\"darkgrey\")", "vector (1,1,1)", {}},
      {"Color(\"Magenta\")", "vector (1,0,1)", {}},
      {"Color(\"Orange\")", "none", {"Color Orange not found"}},
      {"GreyColor(0.25)", "vector (0.75,0.75,0.75)", {}},
      {"GrayColor(-3)", "vector (1,1,1)", {}},
      {"greycolor(7)", "vector (0,0,0)", {}},
      {"Interpolate(0,10,0.25)", "scalar 2.5", {}},
      {"Interpolate(0,10,1)", "scalar 10", {}},
      {"Interpolate(0,10,1.5)", "none",
       {"Cannot use the interpolate function with an amount of 1.5", "Amount must be between 0 and 1"}},
      {"Interpolate((0,0,0),(1,1,1),0.5)", "vector (0.5,0.5,0.5)", {}},
      {"Interpolate((0,0),(1,1,1),0.5)", "none", {"Cannot interpolate vectors of length 2 and 3"}},
      {"Interpolate((0,0),(1,1,1),-0.1)", "none",
       {"Cannot use the interpolate function with an ammount of -0.1", "Amount must be between 0 and 1"}},
  });
}

TEST_F(FunctionTablesTest, GreyColorClampsItsArgumentInPlace) {
  ScalarTerm* level = ScalarTerm::make(7.0);
  Term* arguments[] = {level};
  EXPECT_EQ(describeTerm(callFunction("GreyColor", arguments, 1, expression("x"))), "vector (0,0,0)");
  EXPECT_EQ(level->value, 1.0);
  level->value = -2.0;
  EXPECT_EQ(describeTerm(callFunction("GrayColor", arguments, 1, expression("x"))), "vector (1,1,1)");
  EXPECT_EQ(level->value, 0.0);
}

TEST_F(FunctionTablesTest, RowsAreWellFormedAndUnique) {
  const FunctionTable table = builtinFunctions();
  std::set<std::string> seen;
  for (size_t k = 0; k < table.size; ++k) {
    const FunctionRow& row = table.rows[k];
    std::string key = row.kinds;
    EXPECT_EQ(key.find_first_not_of("svmt"), std::string::npos) << row.name;
    const std::vector<size_t> counts = {0, 1, 2, 3, 4, 6, 12};
    EXPECT_NE(std::find(counts.begin(), counts.end(), key.size()), counts.end()) << row.name;
    key += ':';
    for (const char* c = row.name; *c != '\0'; ++c) key += lowerAscii(*c);
    EXPECT_TRUE(seen.insert(key).second) << key;
  }
}

// Every row is found from its own name in upper case with arguments of its
// own kinds, whatever order the index keeps them in.
TEST_F(FunctionTablesTest, EveryRowIsFoundByItsNameAndKinds) {
  const FunctionTable table = builtinFunctions();
  for (size_t k = 0; k < table.size; ++k) {
    const FunctionRow& row = table.rows[k];
    std::vector<Term*> arguments;
    for (const char* kind = row.kinds; *kind != '\0'; ++kind) {
      if (*kind == 's') arguments.push_back(ScalarTerm::make(1.0));
      if (*kind == 'v') arguments.push_back(VectorTerm::make(3));
      if (*kind == 'm') arguments.push_back(MatrixTerm::make(2, 2));
      if (*kind == 't') arguments.push_back(StringTerm::make("x"));
    }
    std::string shouted = row.name;
    for (char& c : shouted) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_EQ(findFunction(shouted.c_str(), arguments.data(), static_cast<int>(arguments.size())), &row)
        << row.name << "(" << row.kinds << ")";
  }
}

}  // namespace
}  // namespace lumeric
