// Plain decimal texts written on their digits must give exactly what their
// values give: the value read, rounded to the PRECISION step, formatted.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>

#include "core/DecimalText.h"
#include "core/LastingState.h"
#include "writer/SceneWriter.h"

namespace lumeric {
namespace {

std::string written(const std::function<void(SceneWriter&)>& write) {
  char* text = nullptr;
  size_t size = 0;
  FILE* out = open_memstream(&text, &size);
  {
    SceneWriter writer(out);
    write(writer);
  }
  std::fclose(out);
  std::string result(text, size);
  std::free(text);
  return result;
}

PlainDecimal decimalOf(const std::string& text) {
  PlainDecimal decimal{};
  EXPECT_TRUE(isPlainDecimal(text.c_str(), &decimal)) << text;
  return decimal;
}

// Each text followed by a blank, through decimal() and through its value.
void expectSameAsValues(const std::vector<std::string>& texts, bool round) {
  const std::string byDigits = written([&](SceneWriter& out) {
    for (const std::string& t : texts) out.decimal(decimalOf(t), round).character(' ');
  });
  const std::string byValues = written([&](SceneWriter& out) {
    for (const std::string& t : texts) {
      const double v = plainDecimalValue(decimalOf(t));
      (round ? out.rounded(v) : out.number(v)).character(' ');
    }
  });
  if (byDigits == byValues) return;
  // The first text that differs.
  size_t start = 0;
  for (const std::string& t : texts) {
    const size_t a = byDigits.find(' ', start);
    const size_t b = byValues.find(' ', start);
    ASSERT_EQ(byDigits.substr(start, a - start), byValues.substr(start, b - start))
        << "text " << t << ", step " << precisionQuantum;
    start = a + 1;
  }
}

// Texts of every shape the reader keeps: signs, empty or zero integer
// parts, leading zeros in the fraction, runs of nines that carry, halves
// at the step and at the sixth digit, up to 20 digits.
std::vector<std::string> randomTexts(int count) {
  std::mt19937 random(20261125);
  auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const char* fillers[] = {"0123456789", "9", "0", "5", "50", "49", "99999995"};
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    std::string t = below(3) == 0 ? "-" : below(10) == 0 ? "+" : "";
    const int integerDigits = below(4) == 0 ? below(2) : below(10);
    const int fractionDigits = below(5) == 0 ? 0 : below(14);
    auto digits = [&](int n, bool first) {
      const std::string filler = fillers[below(7)];
      for (int k = 0; k < n; ++k) {
        char c = filler[static_cast<size_t>(below(static_cast<int>(filler.size())))];
        if (first && k == 0 && c == '0' && n > 1) c = '1';
        t += c;
      }
    };
    if (integerDigits == 0 && below(2) == 0) {
      t += "0";
    } else {
      digits(integerDigits, true);
    }
    if (fractionDigits > 0 || t.empty() || t == "-" || t == "+") {
      t += ".";
      const int zeros = below(3) == 0 ? below(8) : 0;
      t += std::string(static_cast<size_t>(zeros), '0');
      digits(std::max(fractionDigits, 1), false);
    }
    PlainDecimal decimal{};
    if (isPlainDecimal(t.c_str(), &decimal)) texts.push_back(t);
  }
  return texts;
}

class DecimalWriting : public ::testing::Test {
 protected:
  void TearDown() override { precisionQuantum = saved_; }

 private:
  double saved_ = precisionQuantum;
};

TEST_F(DecimalWriting, RandomTextsMatchTheirValuesAtEveryStep) {
  const std::vector<std::string> texts = randomTexts(40000);
  ASSERT_GT(texts.size(), 30000u);
  for (double step : {0.0001, 0.0, 1.0, 0.1, 0.001, 1e-6, 1e-9, 1e-15, 0.5, 0.25, -1.0}) {
    precisionQuantum = step;
    expectSameAsValues(texts, true);
  }
  expectSameAsValues(texts, false);
}

TEST_F(DecimalWriting, ChosenTextsMatchTheirValues) {
  // Halves at the step and at the sixth digit, carries into a new digit, the
  // edges of "%g"'s fixed form, signed zeros, and more than 15 digits.
  const std::vector<std::string> texts = {
      "0",          "-0",         "+0",          "-0.0",        "0.00004",      "-0.00004",     "0.00005",
      "-0.00005",   "0.00015",    "1.00005",     "2.5",         "-2.5",         "123456.5",     "1234565",
      "999999.5",   "999999.49",  "99999.99995", "0.99995",     "0.000099995",  "0.0001",       "0.00001",
      "0.000012",   "1234567",    "100000",      "999999",      "1000000",      ".5",           "5.",
      "-.00015",    "12.345",     "73.127151",   "-94.910828",  "0.1234565",    "1.23456789012345678",
      "12345678901234567890",     "3.14159265358979",         "0.30000000000000004",        "1.99999999999999999"};
  for (double step : {0.0001, 0.0, 1.0, 0.001, 1e-6}) {
    precisionQuantum = step;
    expectSameAsValues(texts, true);
  }
  expectSameAsValues(texts, false);
}

TEST(DecimalText, TruncationMatchesTheTruncatedValue) {
  for (const std::string& t : randomTexts(20000)) {
    char digits[32];
    const int length = truncateDecimalText(decimalOf(t), digits);
    if (length == 0) continue;
    const double v = plainDecimalValue(decimalOf(t));
    ASSERT_EQ(std::string(digits, static_cast<size_t>(length)), std::to_string(static_cast<long>(v))) << t;
  }
}

TEST(DecimalText, PlainDecimalsAreTheNumbersWithoutExponent) {
  struct {
    const char* text;
    bool plain;
  } cases[] = {{"12", true},   {"-1.5", true}, {"+.5", true},   {"5.", true},  {"0.25", true}, {"0", true},
               {"007", false}, {"1e5", false}, {".", false},    {"-", false},  {"", false},    {"1.2.3", false},
               {" 1", false},  {"1 ", false},  {"=1", false},   {"0x10", false},
               {"1234567890123456789012345678901", true},        {"12345678901234567890123456789012", false}};
  for (const auto& c : cases) {
    PlainDecimal decimal{};
    EXPECT_EQ(isPlainDecimal(c.text, &decimal), c.plain) << c.text;
  }
}

}  // namespace
}  // namespace lumeric
