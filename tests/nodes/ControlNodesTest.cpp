// LOOP and SELECT on scenes too big or too deep to keep as scene files:
// nesting up to the reader's limit, many repetitions in document order,
// and the check pass.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kHeader = "#VRML V1.0 ascii\n";

std::string loopOpening(const std::string& start, const std::string& end) {
  return "LOOP { fields [ SFFloat start, SFFloat end, SFFloat position ] start " + start + " end " + end +
         " position 0\n";
}

std::string selectOpening() { return "SELECT { fields [ SFLong whichChild ] whichChild 0\n"; }

size_t countOf(const std::string& text, const std::string& piece) {
  size_t count = 0;
  for (size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1)) ++count;
  return count;
}

TEST(ControlNodes, LoopsAndSelectsNestedToTheReaderLimitWork) {
  // 62 levels inside the root: the deepest the reader allows.
  std::string opening;
  std::string closing;
  for (int level = 0; level < 61; ++level) {
    opening += level % 2 == 0 ? loopOpening("0", "1") : selectOpening();
    closing += "}\n";
  }
  SceneResult r = translateText(kHeader + "Separator {\n" + opening + "Cube { width 7 }\n" + closing + "}\n");
  EXPECT_TRUE(r.messages.empty()) << r.messages.substr(0, 500);
  EXPECT_EQ(countOf(r.output, "Cube {"), 1u);
  EXPECT_NE(r.output.find("\tCube {\n\t\twidth 7\n"), std::string::npos);
}

TEST(ControlNodesHostile, LoopsNestedBeyondTheLimitStopTheReading) {
  std::string opening;
  std::string closing;
  for (int level = 0; level < 70; ++level) {
    opening += loopOpening("0", "2");
    closing += "}\n";
  }
  SceneResult r = translateText(kHeader + "Separator {\n" + opening + "Cube { }\n" + closing + "}\n");
  ASSERT_NE(r.messages.find("Nodes nested too deep - at most 63 levels"), std::string::npos) << r.messages.substr(0, 500);
  EXPECT_EQ(countOf(r.output, "Cube {"), 0u);
}

TEST(ControlNodes, NestedRepetitionsComeInDocumentOrder) {
  SceneResult r = translateText(kHeader + "Separator {\n" + "DEF Outer " + loopOpening("0", "100") +
                                loopOpening("0", "100") +
                                "Translation { translation =(Outer:position*100+position, 0, 0) }\n}\n}\n}\n");
  ASSERT_TRUE(r.messages.empty()) << r.messages.substr(0, 500);
  ASSERT_EQ(countOf(r.output, "Translation {"), 10000u);
  size_t at = 0;
  for (int k = 0; k < 10000; ++k) {
    size_t next = r.output.find("translation " + std::to_string(k) + " 0 0\n", at);
    ASSERT_NE(next, std::string::npos) << k;
    at = next;
  }
}

TEST(ControlNodes, CheckRunsTheRepetitionsOnce) {
  SceneResult r = checkText(kHeader + "Separator {\n" + loopOpening("0", "3") +
                                selectOpening() + "PRINT position\n}\n}\n}\n",
                            "vlm");
  EXPECT_EQ(r.messages,
            "File \"scene.vlm\" Line 5: position is 0\n"
            "File \"scene.vlm\" Line 5: position is 1\n"
            "File \"scene.vlm\" Line 5: position is 2\n");
}

}  // namespace
}  // namespace lumeric
