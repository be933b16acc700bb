// The annotation comments of PARAMETERS fields: ranges, choices with and
// without labels, and comments that are no annotation at all.
#include "driver/SceneParameters.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumeric {
namespace {

struct RangeCase {
  const char* comment;
  double min, step, max;
  bool hasStep;
};

TEST(ParameterAnnotation, RangesGiveMinimumStepAndMaximum) {
  const RangeCase cases[] = {
      {" [0:0.5:10]", 0, 0.5, 10, true},  {"[1:20]", 1, 0, 20, false},   {"[ 7 ]", 0, 0, 7, false},
      {"[-5 : 5]", -5, 0, 5, false},       {"[1e-3:1e-3:1]", 0.001, 0.001, 1, true},
  };
  for (const RangeCase& c : cases) {
    ParameterAnnotation a;
    ASSERT_TRUE(parseParameterAnnotation(c.comment, a)) << c.comment;
    EXPECT_TRUE(a.isRange) << c.comment;
    EXPECT_TRUE(a.options.empty()) << c.comment;
    EXPECT_DOUBLE_EQ(a.min, c.min) << c.comment;
    EXPECT_DOUBLE_EQ(a.max, c.max) << c.comment;
    EXPECT_EQ(a.hasStep, c.hasStep) << c.comment;
    if (c.hasStep) {
      EXPECT_DOUBLE_EQ(a.step, c.step) << c.comment;
    }
  }
}

struct ChoiceCase {
  const char* comment;
  std::vector<std::pair<std::string, std::string>> options;  // value, label
};

TEST(ParameterAnnotation, ListsGiveChoicesWithTheirLabels) {
  const ChoiceCase cases[] = {
      {"[1, 2, 4]", {{"1", "1"}, {"2", "2"}, {"4", "4"}}},
      {"[10:S, 20:M, 30:L]", {{"10", "S"}, {"20", "M"}, {"30", "L"}}},
      {"[0:Off]", {{"0", "Off"}}},
      {"[\"red\", \"blue\"]", {{"\"red\"", "red"}, {"\"blue\"", "blue"}}},
      {"[1:small one, 2 : \"big\"]", {{"1", "small one"}, {"2", "big"}}},
  };
  for (const ChoiceCase& c : cases) {
    ParameterAnnotation a;
    ASSERT_TRUE(parseParameterAnnotation(c.comment, a)) << c.comment;
    EXPECT_FALSE(a.isRange) << c.comment;
    std::vector<std::pair<std::string, std::string>> options;
    for (const ParameterOption& o : a.options) options.emplace_back(o.value, o.label);
    EXPECT_EQ(options, c.options) << c.comment;
  }
}

TEST(ParameterAnnotation, OtherCommentsAreNoAnnotation) {
  const char* const comments[] = {"", "the width", "[", "[]", "[1, , 2]", "[5:1]", "[0:0:5]", "[0:-1:5]",
                                  "[1:2:3:4]", "see [0:10]", "[0:10] mm", "[1,]"};
  for (const char* comment : comments) {
    ParameterAnnotation a;
    EXPECT_FALSE(parseParameterAnnotation(comment, a)) << comment;
  }
}

}  // namespace
}  // namespace lumeric
