// Plain number texts are evaluated without the parser; they must give
// exactly what the parser gives, and leave the serials as a parse does.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "core/LastingState.h"
#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionLexer.h"
#include "expr/TermArena.h"
#include "expr/ExpressionFixture.h"

namespace lumeric {
namespace {

class PlainNumberTest : public ExpressionFixture {};

TEST_F(PlainNumberTest, TheFastReadingAgreesWithTheParser) {
  const char* texts[] = {"1.5",   "-0.25e3", "+7",      "0",     "0.5",   ".5",    "5.",   "-0",
                         "1e-7",  "1E+06",   "123456789012", "3.14159265358979", "-.75", "0e5"};
  for (const char* text : texts) {
    double fast = 0;
    ASSERT_TRUE(ExpressionLexer::readPlainNumber(text, &fast)) << text;
    // "=" in front sends the same number through the parser.
    Term* parsed = nullptr;
    FieldExpression* e = expression(std::string("=") + text);
    ASSERT_EQ(parseExpression(e, &parsed, theContext.startEvaluation(), 0), 0) << text;
    ASSERT_NE(asScalar(parsed), nullptr) << text;
    EXPECT_EQ(std::memcmp(&fast, &asScalar(parsed)->value, sizeof fast), 0) << text;

    const int before = expressionSerials;
    double out = 0;
    EXPECT_EQ(evaluateScalar(expression(text), &out), 1) << text;
    EXPECT_EQ(std::memcmp(&fast, &out, sizeof out), 0) << text;
    EXPECT_EQ(expressionSerials, before + 2) << text;
    EXPECT_EQ(theContext.parseStatus, 0);
  }
  EXPECT_TRUE(takeMessages().empty());
}

// A field reference parses the text it reads inside the parse that refers
// to it; a plain number there makes the terms, draws the serials and leaves
// the term memory as the parser does.
TEST_F(PlainNumberTest, AParseOfAPlainNumberMakesWhatTheParserMakes) {
  const char* texts[] = {"12", "-12", "+12", "-0", "2.5e6", "-1.25", "0"};
  for (const char* text : texts) {
    struct Outcome {
      double value;
      int serials;
      size_t termBytes;
    };
    auto parse = [&](const std::string& t) {
      const int before = expressionSerials;
      const size_t bytes = termArena().bytesInUse();
      Term* result = nullptr;
      EXPECT_EQ(parseExpression(expression(t), &result, theContext.startEvaluation(), 0), 0) << t;
      ScalarTerm* scalar = asScalar(result);
      EXPECT_NE(scalar, nullptr) << t;
      return Outcome{scalar != nullptr ? scalar->value : NAN, expressionSerials - before,
                     termArena().bytesInUse() - bytes};
    };
    const Outcome fast = parse(text);
    const Outcome parsed = parse(std::string("=") + text);
    EXPECT_EQ(std::memcmp(&fast.value, &parsed.value, sizeof fast.value), 0) << text;
    EXPECT_EQ(fast.serials, parsed.serials) << text;
    EXPECT_EQ(fast.termBytes, parsed.termBytes) << text;
  }
  EXPECT_TRUE(takeMessages().empty());
}

TEST_F(PlainNumberTest, EverythingElseIsLeftToTheParser) {
  const char* texts[] = {"017", "0x1F", "1e", "2e+", "--1", "1 ", "(1)", "1+1", "a", "", ".", "-",
                         "1234567890123456789012345678901234567890"};
  for (const char* text : texts) {
    double value = 0;
    EXPECT_FALSE(ExpressionLexer::readPlainNumber(text, &value)) << text;
  }
  double octal = 0;
  EXPECT_EQ(evaluateScalar(expression("017"), &octal), 1);
  EXPECT_EQ(octal, 15);
}

}  // namespace
}  // namespace lumeric

namespace lumeric {
namespace {

// Number texts of every shape convert exactly as the C library's strtod.
TEST(PlainNumberConversion, AgreesWithStrtodBitForBit) {
  uint64_t state = 12345;
  auto next = [&state](uint64_t bound) {
    state = state * 6364136223846793005ull + 1442695040888963407ull;
    return (state >> 33) % bound;
  };
  for (int n = 0; n < 200000; ++n) {
    std::string text;
    int intDigits = static_cast<int>(next(12));
    for (int i = 0; i < intDigits; ++i) text += static_cast<char>('0' + next(10));
    if (!text.empty() && text[0] == '0') text[0] = '1';
    if (text.empty() || next(2) == 0) {
      text += '.';
      int fracDigits = static_cast<int>(next(14)) + (text.size() == 1 ? 1 : 0);
      for (int i = 0; i < fracDigits; ++i) text += static_cast<char>('0' + next(10));
    }
    if (next(3) == 0) {
      text += next(2) ? 'e' : 'E';
      if (next(2)) text += next(2) ? '-' : '+';
      text += std::to_string(next(40));
    }
    double ours = 0;
    ASSERT_TRUE(ExpressionLexer::readPlainNumber(text.c_str(), &ours)) << text;
    double theirs = std::strtod(text.c_str(), nullptr);
    ASSERT_EQ(std::memcmp(&ours, &theirs, sizeof ours), 0) << text;
  }
}

}  // namespace
}  // namespace lumeric
