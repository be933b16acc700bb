#include "expr/Evaluation.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "core/LastingState.h"
#include "core/QvContext.h"
#include "expr/ExpressionFixture.h"
#include "expr/TermArena.h"

namespace lumeric {
namespace {

struct Case {
  const char* text;
  const char* result;                 // describeTerm of what the statement stored
  int status;                         // the parse status
  std::vector<std::string> messages;  // without the line prefix
};

class EvaluationTest : public ExpressionFixture {
 protected:
  // Each text is evaluated three times: parsed, parsed while recorded, and
  // replayed from the recording; all three must give the same.
  void check(const std::vector<Case>& cases) {
    for (int round = 0; round < 3; ++round) {
      for (const Case& c : cases) {
        Term* result = evaluateTerm(expression(c.text));
        EXPECT_EQ(theContext.parseStatus, c.status) << c.text << " (evaluation " << round + 1 << ")";
        EXPECT_EQ(describeTerm(result), c.result) << c.text << " (evaluation " << round + 1 << ")";
        EXPECT_EQ(takeMessages(), c.messages) << c.text << " (evaluation " << round + 1 << ")";
      }
    }
  }

  static std::string repeat(const std::string& piece, int count) {
    std::string text;
    for (int k = 0; k < count; ++k) text += piece;
    return text;
  }
};

const char* const kExpressionStart =
    " - expecting: '!' or '(' or '+' or '-' or ':' or FALSE or IF or NAME or NUMBER or STRING or TRUE";

TEST_F(EvaluationTest, PrecedenceAndAssociativity) {
  check({
      {"1+2*3", "scalar 7", 0, {}},
      {"(1+2)*3", "scalar 9", 0, {}},
      {"1-2-3", "scalar -4", 0, {}},
      {"8/4/2", "scalar 1", 0, {}},
      {"7%4*2", "scalar 6", 0, {}},
      {"2*7%4", "scalar 2", 0, {}},
      {"2^3^2", "scalar 512", 0, {}},
      {"2*3^2", "scalar 18", 0, {}},
      {"-2^2", "scalar 4", 0, {}},
      {"2^-1", "scalar 0.5", 0, {}},
      {"- -3+5", "scalar 8", 0, {}},
      {"+-3", "scalar -3", 0, {}},
      {"!0+1", "scalar 2", 0, {}},
      {"!1==0", "scalar 1", 0, {}},
      {"1+2<3+1", "scalar 1", 0, {}},
      {"1<2==1", "scalar 1", 0, {}},
      {"3>2>1", "scalar 0", 0, {}},
      {"2==2!=0", "scalar 1", 0, {}},
      {"0||1&&0", "scalar 0", 0, {}},
      {"1||0&&0", "scalar 1", 0, {}},
      {"1==1&&0", "scalar 0", 0, {}},
      {"0&&0||1", "scalar 1", 0, {}},
      {"IF 1 THEN 2 ELSE 3 + 4", "scalar 2", 0, {}},
      {"IF 0 THEN 2 ELSE 3 + 4", "scalar 7", 0, {}},
      {"1 + IF 0 THEN 2 ELSE 3", "scalar 4", 0, {}},
      {"IF 0 THEN 1 ELSE IF 1 THEN 2 ELSE 3", "scalar 2", 0, {}},
      {"IF 1 THEN IF 0 THEN 5 ELSE 6 ELSE 7", "scalar 6", 0, {}},
      {"if 1 > 2 || 1 then 5 else 6", "scalar 5", 0, {}},
  });
}

TEST_F(EvaluationTest, Comparisons) {
  check({
      {"2<3", "scalar 1", 0, {}},  {"3<2", "scalar 0", 0, {}},  {"3>2", "scalar 1", 0, {}},
      {"2>2", "scalar 0", 0, {}},  {"2<=2", "scalar 1", 0, {}}, {"3<=2", "scalar 0", 0, {}},
      {"2>=2", "scalar 1", 0, {}}, {"2>=3", "scalar 0", 0, {}}, {"-0==0", "scalar 1", 0, {}},
      {"3!=3", "scalar 0", 0, {}}, {"3 != 4", "scalar 1", 0, {}},
  });
}

TEST_F(EvaluationTest, Literals) {
  check({
      {"=3+4", "scalar 7", 0, {}},
      {"(1+2)", "scalar 3", 0, {}},
      {".5", "scalar 0.5", 0, {}},
      {"017+0x1F", "scalar 46", 0, {}},
      {"TRUE", "scalar 1", 0, {}},
      {"tRuE+False", "scalar 1", 0, {}},
      {"\"a b\"", "string \"a b\"", 0, {}},
      {"\"abc", "string \"abc\"", 0, {}},
      {"(1,2,3)", "vector (1,2,3)", 0, {}},
      {"((1,2),3)", "vector (1,2,3)", 0, {}},
      {"((1,2),(3,4))", "vector (1,2,3,4)", 0, {}},
      {"(1,(2,3))", "none", 1, {"Error in forming vector"}},
      {"(\"a\",1)", "none", 1, {"Error in forming vector"}},
      {"(1,2);(3,4)", "matrix (1,2;3,4)", 0, {}},
      {"(1,0,0);(0,1,0);(0,0,1)", "matrix (1,0,0;0,1,0;0,0,1)", 0, {}},
      {"(1,2);(3,4,5)", "none", 1, {"Error in forming matrix"}},
      {"(1);(2)", "none", 1, {"Error in forming matrix"}},
      {"(1,2);(3,4);5", "none", 1, {"Syntax error: found NUMBER - expecting: '('"}},
  });
}

TEST_F(EvaluationTest, OperatorsOnVectorsAndMatrices) {
  check({
      {"(1,2,3)+(1,2)", "none", 1, {"Cannot add a 3 length vector to a 2 length vector"}},
      {"(1,2,3)-(1,2)", "none", 1, {"Cannot add a 3 length vector to a 2 length vector"}},
      {"(1,2,3)*(4,5,6)", "vector (4,10,18)", 0, {}},
      {"(1,2)*(4,5,6)", "none", 1, {"Cannot multiply a 2 length vector by a 3 length vector"}},
      {"2-(1,2,3)", "vector (1,0,-1)", 0, {}},
      {"(1,2,3)-2", "vector (-1,0,1)", 0, {}},
      {"1+(1,2)", "vector (2,3)", 0, {}},
      {"(1,2)*2", "vector (2,4)", 0, {}},
      {"-(1,2)", "vector (-1,-2)", 0, {}},
      {"(1,2);(3,4) * (5,6);(7,8)", "matrix (19,22;43,50)", 0, {}},
      {"(1,2,3);(4,5,6) * (1,2,3);(4,5,6)", "none", 1, {"Cannot multiply a 2 x 3 matrix by a 2 by 3 matrix"}},
      {"(1,2);(3,4) + (1,1);(1,1)", "matrix (2,3;4,5)", 0, {}},
      {"(1,2);(3,4) - (1,2,3);(4,5,6)", "none", 1, {"Cannot add a 2 x 2 matrix to a 2 by 3 matrix"}},
      {"(1,2);(3,4) - 1", "matrix (0,1;2,3)", 0, {}},
      {"1 - (1,2);(3,4)", "matrix (0,-1;-2,-3)", 0, {}},
      {"2 * (1,2);(3,4)", "matrix (2,4;6,8)", 0, {}},
      {"-((1,2);(3,4))", "matrix (-1,-2;-3,-4)", 0, {}},
      {"(1,2);(3,4) + (1,2)", "none", 1, {"Cannot add terms"}},
      {"(1,2) - (1,2);(3,4)", "none", 1, {"Cannot subtract terms"}},
      {"(1,2);(3,4) * (1,2)", "none", 1, {"Cannot multiply terms"}},
  });
}

TEST_F(EvaluationTest, OperatorsOnScalarsAndStrings) {
  check({
      {"7/2", "scalar 3.5", 0, {}},
      {"-7%3", "scalar -1", 0, {}},
      {"1/0", "scalar 0", 0, {"Attempt to divide by 0.0"}},
      {"1/-0", "scalar 0", 0, {"Attempt to divide by 0.0"}},
      {"5%0+1", "scalar 1", 0, {"Attempt to divide by 0.0"}},
      {"!2", "scalar 0", 0, {}},
      {"!(-0)", "scalar 1", 0, {}},
      {"\"a\"+1", "none", 1, {"Cannot add terms"}},
      {"\"a\"-1", "none", 1, {"Cannot subtract terms"}},
      {"\"a\"*1", "none", 1, {"Cannot multiply terms"}},
      {"(1,2)/2", "none", 1, {"Cannot divide non-scaler terms"}},
      {"(1,2)%2", "none", 1, {"Cannot compute remainder for non-scaler terms"}},
      {"2^(1,2)", "none", 1, {"Cannot compute power for non-scaler terms"}},
      {"-\"a\"", "none", 1, {"Cannot negate term"}},
      {"!\"a\"", "none", 1, {"Cannot negate non-scaler terms"}},
      {"(1,2)&&1", "none", 1, {"Cannot AND non-scaler terms"}},
      {"1||\"a\"", "none", 1, {"Cannot OR non-scaler terms"}},
      {"(1,2)==(1,2)", "none", 1, {"Cannot compare non-scaler terms"}},
      {"\"a\"!=\"a\"", "none", 1, {"Cannot compare non-scaler terms"}},
      {"IF (1,2) THEN 1 ELSE 2", "none", 1, {"Cannot test non-scaler terms"}},
      {"IF 0 THEN 1 ELSE \"b\"", "string \"b\"", 0, {}},
      // The first failing action ends the evaluation; later ones never run.
      {"\"a\"+1+\"b\"*2", "none", 1, {"Cannot add terms"}},
      {"1/0 + \"a\"", "none", 1, {"Attempt to divide by 0.0", "Cannot add terms"}},
  });
}

TEST_F(EvaluationTest, NameExpressions) {
  check({
      {"USE Ball", "string \"Ball\"", 0, {}},
      {"use Ball~`2`", "string \"Ball2\"", 0, {}},
      {"USE Ball~`(1,2,3)`", "string \"Ball(1,2,3)\"", 0, {}},
      {"USE Row~`(1,2)`~Top", "string \"Row(1,2)Top\"", 0, {}},
      {"USE Ball~`\"x\"`~`0.5`~`1e7`", "string \"Ballx0.51e+07\"", 0, {}},
      {"USE Ball~Top", "string \"BallTop\"", 0, {}},
      {"USE Ball~`(1,2,3,4,5)`", "none", 1, {"Cannot format value for use with string expression"}},
      {"USE Ball~`(1,2);(3,4)`", "none", 1, {"Cannot format value for use with string expression"}},
      {"USE 1", "none", 1, {"Syntax error: found NUMBER - expecting: NAME"}},
  });
}

TEST_F(EvaluationTest, CallsAndUnitsThatMatchNothing) {
  check({
      {"f()", "none", 1, {"Function f() not found"}},
      {"f(1)", "none", 1, {"Function f(...) not found"}},
      {"f(1,2)", "none", 1, {"Function f(...) not found"}},
      {"f(1,2,3)", "none", 1, {"Function f(...) not found"}},
      {"f(1,2,3,4)", "none", 1, {"Function f(...) not found"}},
      {"f(1,2,3,4,5,6)", "none", 1, {"Function f(...) not found"}},
      {"f((1,2),2,3,4,5,6)", "none", 1, {}},
      {"f(1,2,3,4,5,6,7,8,9,10,11,12)", "none", 1, {}},
      {"90'furlong", "scalar 90", 0, {"Conversion furlong not found"}},
      {"(1,2)'m", "vector (1,2)", 0, {"Conversion m not found"}},
  });
}

TEST_F(EvaluationTest, ReferencesWithoutNodes) {
  check({
      {"a", "none", 1, {"Field a not found"}},
      {"a b", "none", 1, {"Field a not found"}},
      {":a[1]", "none", 1, {"Field a not found"}},
      {"Box:size", "none", 1, {"Field Box:size not found"}},
      {"Ball~`3`:radius[0][1]", "none", 1, {"Field Ball3:radius not found"}},
      {"a[(1,2)]", "none", 1, {"Cannot use a term as an index"}},
      {"B:a[1][\"x\"]", "none", 1, {"Cannot use a term as an index"}},
  });
}

TEST_F(EvaluationTest, StatementsPostButDoNotFail) {
  check({
      {"SET Box:width 3", "none", 0, {"Field Box:width not found"}},
      {"SET Box:width[1] 3", "none", 0, {"Field Box:width not found"}},
      {"SET Box:width[1][2] 3", "none", 0, {"Field Box:width not found"}},
      {"SET Box:width[(1,2)] 3", "none", 0, {"Scaler index value expected"}},
      {"APPEND Box:pts (1,2,3)", "none", 0, {"Field Box:pts not found"}},
      {"DECLARE Box:pts (10,5)", "none", 0, {"Field Box:pts not found"}},
      {"SET Box:width \"a\"+1", "none", 1, {"Cannot add terms"}},
  });
}

TEST_F(EvaluationTest, QueriesFailSilently) {
  check({
      {"?", "none", 1, {}},
      {"? f()", "none", 1, {}},
      {"? 5", "none", 1, {}},
  });
}

TEST_F(EvaluationTest, SyntaxErrors) {
  check({
      {"", "none", 0, {}},
      {"  ", "none", 1, {"Syntax error: found [end of file] - expecting: '!' or '(' or '+' or '-' or ':' or '=' or "
                         "'?' or APPEND or DECLARE or FALSE or IF or NAME or NUMBER or STRING or SET or USE or TRUE "
                         "or char 279"}},
      {"1 2", "scalar 1", 1, {"Syntax error: found NUMBER"}},
      {"1 +", "none", 1, {std::string("Syntax error: found [end of file]") + kExpressionStart}},
      {"=", "none", 1, {std::string("Syntax error: found [end of file]") + kExpressionStart}},
      {"1 && ", "none", 1, {std::string("Syntax error: found [end of file]") + kExpressionStart}},
      {"1 & 2", "scalar 1", 1, {"Syntax error: found '&'"}},
      {"1'2", "none", 1, {"Syntax error: found NUMBER - expecting: NAME"}},
      {"f(1,2,3,4,5)", "none", 1,
       {"Syntax error: found ')' - expecting: '%' or ''' or '*' or '+' or ',' or '-' or '/' or '^' or AND or EQ "
        "or GE or GT or LE or LT or NE or OR"}},
      // The default reduction of the list comes first, so only its state's
      // tokens are expected.
      {"(1", "none", 1, {"Syntax error: found [end of file] - expecting: ')' or ','"}},
      {"SET 1", "none", 1, {"Syntax error: found NUMBER - expecting: NAME"}},
      {"\xC3\xA9", "none", 1, {"Syntax error: found char 195 - expecting: '!' or '(' or '+' or '-' or ':' or '=' or "
                               "'?' or APPEND or DECLARE or FALSE or IF or NAME or NUMBER or STRING or SET or USE "
                               "or TRUE or char 279"}},
      {"IF 1 THEN 2", "none", 1,
       {"Syntax error: found [end of file] - expecting: '%' or ''' or '*' or '+' or '-' or '/' or '^' or AND or "
        "EQ or ELSE or GE or GT or LE or LT or NE or OR"}},
  });
}

TEST_F(EvaluationTest, StackHoldsExactlyOneHundredStates) {
  // At the innermost closing parenthesis the stack holds the start state,
  // 97 opening parentheses, the list and the closing one: 100 states.
  EXPECT_EQ(describeTerm(evaluateTerm(expression(repeat("(", 97) + "1" + repeat(")", 97)))), "scalar 1");
  EXPECT_EQ(theContext.parseStatus, 0);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});

  EXPECT_EQ(evaluateTerm(expression(repeat("(", 98) + "1" + repeat(")", 98))), nullptr);
  EXPECT_EQ(theContext.parseStatus, 1);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Expression too complex: found char -1"});
}

TEST_F(EvaluationTest, DeepTextsFailCleanly) {
  double value = 0;
  EXPECT_EQ(evaluateScalar(expression(repeat("(", 50) + "1" + repeat(")", 50)), &value), 1);
  EXPECT_EQ(value, 1);
  const std::vector<std::pair<std::string, int>> deep = {
      {repeat("(", 120) + "1" + repeat(")", 120), 1},
      {repeat("(", 510) + "1" + repeat(")", 510), 1},
      {repeat("-", 10000) + "1", 1},
      {repeat("1^", 10000) + "1", 1},
      {repeat("IF 1 THEN ", 5000) + "1", 1},
  };
  for (const auto& [text, status] : deep) {
    EXPECT_EQ(evaluateTerm(expression(text)), nullptr);
    EXPECT_EQ(theContext.parseStatus, status);
    EXPECT_EQ(takeMessages(), std::vector<std::string>{"Expression too complex: found char -1"}) << text.size();
  }
  // Left-associative chains never grow the stack.  Such a text makes more
  // terms than a recorded parse holds, so it is parsed every time.
  for (int round = 0; round < 3; ++round) {
    value = 0;
    EXPECT_EQ(evaluateScalar(expression(repeat("1+", 10000) + "1"), &value), 1);
    EXPECT_EQ(value, 10001);
  }
}

TEST_F(EvaluationTest, EntryPointsAnswerDifferently) {
  double scalar = -1;
  double vector[3] = {-1, -1, -1};

  FieldExpression* twoNumbers = expression("1 2");
  EXPECT_EQ(describeTerm(evaluateTerm(twoNumbers)), "scalar 1");
  EXPECT_EQ(evaluateScalar(twoNumbers, &scalar), 0);
  EXPECT_EQ(scalar, -1);
  EXPECT_EQ(takeMessages().size(), 2u);

  FieldExpression* text = expression("\"abc\"");
  EXPECT_EQ(describeTerm(evaluateString(text)), "string \"abc\"");
  EXPECT_EQ(evaluateScalar(text, &scalar), 0);
  EXPECT_EQ(evaluateName(text), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"Syntax error: found STRING - expecting: NAME"});

  FieldExpression* name = expression("Ball~`1+1`");
  EXPECT_EQ(describeTerm(evaluateName(name)), "string \"Ball2\"");
  EXPECT_EQ(evaluateString(name), nullptr);
  EXPECT_EQ(takeMessages(),
            std::vector<std::string>{"Syntax error: found [end of file] - expecting: ':' or '~'"});

  FieldExpression* number = expression("2.5");
  EXPECT_EQ(evaluateString(number), nullptr);
  EXPECT_EQ(evaluateScalar(number, &scalar), 1);
  EXPECT_EQ(scalar, 2.5);
  EXPECT_EQ(evaluateVector(number, vector, 1), 0);

  FieldExpression* triple = expression("(1,2,3)");
  EXPECT_EQ(evaluateVector(triple, vector, 2), 0);
  EXPECT_EQ(vector[0], -1);
  EXPECT_EQ(evaluateVector(triple, vector, 3), 1);
  EXPECT_EQ(vector[2], 3);
  EXPECT_EQ(evaluateScalar(triple, &scalar), 0);

  EXPECT_EQ(evaluateScalar(expression(""), &scalar), 0);
  EXPECT_EQ(evaluateScalar(nullptr, &scalar), 0);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

TEST_F(EvaluationTest, EachEvaluationDrawsTwoSerials) {
  const int before = expressionSerials;
  double value = 0;
  evaluateScalar(expression("1"), &value);
  EXPECT_EQ(theContext.currentSerial, before + 1);
  EXPECT_EQ(expressionSerials, before + 2);
  // Nothing to parse: the evaluation starts but the parser draws nothing.
  evaluateTerm(expression(""));
  EXPECT_EQ(expressionSerials, before + 3);
}

TEST_F(EvaluationTest, MessagesCarryTheExpressionLine) {
  FieldExpression* e = expression("1/0");
  e->line = 42;
  evaluateTerm(e);
  ASSERT_EQ(view_.messages().size(), 1u);
  EXPECT_EQ(view_.messages()[0].text, "Line 42: Attempt to divide by 0.0");
  EXPECT_EQ(view_.messages()[0].flag, 1);
  view_.clear();
}

TEST_F(EvaluationTest, ScalarEvaluationReleasesItsTerms) {
  double value = 0;
  evaluateTerm(expression("(1,2,3)"));  // kept: it was handed out
  FieldExpression* e = expression("(1+2)*(3,4,5)*0 + 7 + \"x\"");
  const size_t before = termArena().bytesInUse();
  EXPECT_EQ(evaluateScalar(e, &value), 0);
  EXPECT_EQ(evaluateScalar(expression("(1+2)*3"), &value), 1);
  EXPECT_EQ(value, 9);
  EXPECT_EQ(termArena().bytesInUse(), before);
  takeMessages();
}

// Arbitrary bytes must never crash, hang or read out of bounds; the
// sanitizers watch this run.
TEST_F(EvaluationTest, SurvivesArbitraryText) {
  const std::string alphabet = "()()(,;~`'\"#+-*/%^!=<>&|?:[]. \t\r\n\x01\x80\xFF" "0123456789eExabcIFTHENELSEsetUSE";
  std::mt19937 random(12345);
  std::uniform_int_distribution<size_t> pick(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 60);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (int k = length(random); k > 0; --k) text += alphabet[pick(random)];
    double out[4];
    evaluateTerm(expression(text));
    evaluateScalar(expression(text), out);
    evaluateVector(expression(text), out, 3);
    evaluateName(expression(text));
    view_.clear();
    if (round % 1000 == 0) freeAllTerms();
  }
}

}  // namespace
}  // namespace lumeric
