#include "expr/ExpressionLexer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "expr/Term.h"

namespace lumeric {
namespace {

class ExpressionLexerTest : public ::testing::Test {
 protected:
  void TearDown() override { freeAllTerms(); }

  // Every token of `text` by its description, separated by blanks, up to
  // (not including) the end.
  static std::string tokensOf(const std::string& text, int startToken = 0) {
    ExpressionLexer lexer(nullptr, text.c_str(), startToken);
    TokenValue value;
    lexer.value = &value;
    std::string all;
    for (int guard = 0; guard < 1000; ++guard) {
      int token = lexer.nextToken();
      if (token == kEndToken) break;
      if (!all.empty()) all += ' ';
      all += ExpressionLexer::describeToken(token);
    }
    return all;
  }

  // The first token of `text`, which must carry a term.
  static Term* firstTerm(const std::string& text, int expectedToken) {
    ExpressionLexer lexer(nullptr, text.c_str(), 0);
    TokenValue value;
    lexer.value = &value;
    EXPECT_EQ(lexer.nextToken(), expectedToken) << text;
    return value.term;
  }
};

TEST_F(ExpressionLexerTest, ScansTokenSequences) {
  struct Case {
    const char* text;
    const char* tokens;
  };
  const Case cases[] = {
      {"a&&b", "NAME AND NAME"},
      {"a&b", "NAME '&' NAME"},
      {"a||b|c", "NAME OR NAME '|' NAME"},
      {"x<=1", "NAME LE NUMBER"},
      {"x=<1", "NAME '=' LT NUMBER"},
      {"a==b=c", "NAME EQ NAME '=' NAME"},
      {"a>=b>c", "NAME GE NAME GT NAME"},
      {"a!=b !c", "NAME NE NAME '!' NAME"},
      {"0X1F", "NUMBER NAME"},
      {"True tRuE sex setx", "TRUE TRUE NAME NAME"},
      {"if then else set use true false append declare", "IF THEN ELSE SET USE TRUE FALSE APPEND DECLARE"},
      {"IFx _if", "NAME '_' IF"},
      {"a # b c", "NAME"},
      {"a #b\rc", "NAME NAME"},
      {"a\tb\nc\vd\fe\rf", "NAME NAME NAME NAME NAME NAME"},
      {"a\x01 b", "NAME"},
      {"a\x7f b", "NAME"},
      {"$ @ \\ { } . ; ? ` ~ ' [ ] ^ %", "'$' '@' '\\' '{' '}' '.' ';' '?' '`' '~' ''' '[' ']' '^' '%'"},
      {".5.x", "NUMBER '.' NAME"},
      {"019x", "NUMBER NAME"},
      {"1ex", "NUMBER NAME"},
      {"\xC3\xA9t\xE9", "char 195 char 169 NAME char 233"},
      {"\"a\x01" "b\"", "STRING NAME STRING"},
  };
  for (const Case& c : cases) EXPECT_EQ(tokensOf(c.text), c.tokens) << c.text;
}

TEST_F(ExpressionLexerTest, ConvertsNumbers) {
  struct Case {
    const char* text;
    double value;
  };
  const double longMax = static_cast<double>(std::numeric_limits<long>::max());
  const Case cases[] = {
      {"017", 15},
      {"0x1F", 31},
      {"0xff", 255},
      {"019", 1},
      {"08", 0},
      {"0x", 0},
      {"0X1F", 0},
      {".5", 0.5},
      {"5.", 5},
      {"1e3", 1000},
      {"1.5E-2", 0.015},
      {"2e+2", 200},
      {"1e", 0},
      {"2e+", 0},
      {"0.1", 0.1},
      {"1234567890123456789012345678901234567890", 1.2345678901234568e39},
      {"0.000000000000000000000000000000000000001", 1e-39},
      {"1e999", std::numeric_limits<double>::infinity()},
      {"1e-999", 0},
      {"07777777777777777777777777777777", longMax},
      {"0xFFFFFFFFFFFFFFFFFFFF", longMax},
  };
  for (const Case& c : cases) {
    ScalarTerm* s = asScalar(firstTerm(c.text, kNumberToken));
    ASSERT_NE(s, nullptr) << c.text;
    EXPECT_EQ(s->value, c.value) << c.text;
  }
}

TEST_F(ExpressionLexerTest, NumberTextIsConsumedWhole) {
  EXPECT_EQ(tokensOf("019 0x1Fg 1e+ 2"), "NUMBER NUMBER NAME NUMBER NUMBER");
}

TEST_F(ExpressionLexerTest, ScansStringsAndNames) {
  struct Case {
    std::string text;
    int token;
    std::string value;
  };
  const std::string longRun(300, 'x');
  const Case cases[] = {
      {"\"abc", kStringToken, "abc"},
      {"\"a b, c\"", kStringToken, "a b, c"},
      {"\"\"", kStringToken, ""},
      {"\"a\tb\"", kStringToken, "a"},
      {"\"a\xE9" "b\"", kStringToken, "a"},
      {"\"" + longRun, kStringToken, std::string(254, 'x')},
      {"\"" + std::string(254, 'y') + "\"", kStringToken, std::string(254, 'y')},
      {"Ball_2x", kNameToken, "Ball_2x"},
      {"TRUE", kTrueToken, "TRUE"},
      {longRun, kNameToken, std::string(255, 'x')},
  };
  for (const Case& c : cases) {
    StringTerm* s = asString(firstTerm(c.text, c.token));
    ASSERT_NE(s, nullptr) << c.text;
    EXPECT_EQ(s->text, c.value) << c.text;
  }
}

TEST_F(ExpressionLexerTest, LimitsSplitLongStringsAndNames) {
  // The 255th character of a string is dropped; scanning continues after it.
  EXPECT_EQ(tokensOf("\"" + std::string(255, 'x') + "ab\""), "STRING NAME STRING");
  EXPECT_EQ(tokensOf("\"" + std::string(254, 'x') + "\"ab"), "STRING NAME");
  EXPECT_EQ(tokensOf(std::string(255, 'x') + "12"), "NAME NUMBER");
}

TEST_F(ExpressionLexerTest, RecordsTokenPositionAndLength) {
  const char* text = "  foo <= 12";
  ExpressionLexer lexer(nullptr, text, 0);
  TokenValue value;
  lexer.value = &value;
  ASSERT_EQ(lexer.nextToken(), kNameToken);
  EXPECT_EQ(value.text, text + 2);
  EXPECT_EQ(value.length, 4);
  ASSERT_EQ(lexer.nextToken(), kLeToken);
  EXPECT_EQ(value.text, text + 6);
  EXPECT_EQ(value.length, 3);
  EXPECT_EQ(value.term, nullptr);
}

TEST_F(ExpressionLexerTest, StartTokenComesFirstAndEndRepeats) {
  EXPECT_EQ(tokensOf("Ball", kNameExpressionToken), "char 279 NAME");
  ExpressionLexer lexer(nullptr, "a\x02 b", 0);
  TokenValue value;
  lexer.value = &value;
  EXPECT_EQ(lexer.nextToken(), kNameToken);
  EXPECT_EQ(lexer.nextToken(), kEndToken);
  EXPECT_EQ(lexer.nextToken(), kEndToken);
}

TEST_F(ExpressionLexerTest, DescribesTokens) {
  struct Case {
    int code;
    const char* text;
  };
  const Case cases[] = {
      {0, "[end of file]"}, {7, "'\\a'"},     {8, "'\\b'"},     {9, "'\\t'"},       {10, "'\\n'"},
      {11, "'\\v'"},        {12, "'\\f'"},     {13, "'\\r'"},     {1, "char 1"},       {31, "char 31"},
      {' ', "' '"},         {';', "';'"},      {'a', "'a'"},      {'~', "'~'"},        {127, "char 127"},
      {200, "char 200"},    {256, "[error]"},  {257, "AND"},      {266, "ELSE"},       {272, "NE"},
      {278, "TRUE"},        {279, "char 279"}, {-1, "char -1"},
  };
  for (const Case& c : cases) EXPECT_EQ(ExpressionLexer::describeToken(c.code), c.text) << c.code;
}

}  // namespace
}  // namespace lumeric
