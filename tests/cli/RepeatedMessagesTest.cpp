// Messages from the repetitions of a LOOP: a copy's message names the file
// of the node copied (gnu, json), and identical messages are folded into
// one and a "repeated N times" note (gnu, plain --hints) or counted on the
// first (json).  Plain output without --hints stays as the library posts.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

// Three repetitions; the copied part, from an included file, refers to the
// LOOP's position when written, where the LOOP no longer encloses it (a
// USE reads its line to the end, so the message is at the line after it).
const char kScene[] =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "\tLOOP {\n"
    "\t\tfields [ SFFloat start, SFFloat end, SFFloat position ]\n"
    "\t\tstart 0 end 3 position 0\n"
    "\t\tCube { width =position*wrong }\n"
    "\t\tINCLUDE part.vlm\n"
    "\t}\n"
    "\tCube { depth =nowhere }\n"
    "}\n";
const char kPart[] =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "\tUSE Ball~`position`\n"
    "}\n";

struct Folding {
  const char* format;
  const char* expected;
};

class RepeatedMessages : public testing::TestWithParam<Folding> {};

TEST_P(RepeatedMessages, AreFoldedPerLoopAndNameTheCopiedFile) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  dir.write("part.vlm", kPart);
  std::vector<std::string> arguments = {"--lint", "scene.vlm"};
  const std::string format = GetParam().format;
  if (format == "hints") {
    arguments.insert(arguments.begin(), "--hints");
  } else {
    arguments.insert(arguments.begin(), {"--message-format", format});
  }
  const CommandResult run = runLumeric(arguments, dir.path());
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    EachFormat, RepeatedMessages,
    testing::Values(
        Folding{"gnu",
                "scene.vlm:6: error: Field wrong not found\n"
                "scene.vlm:6: note: repeated 3 times\n"
                "part.vlm:4: error: Field position not found\n"
                "part.vlm:4: note: repeated 3 times\n"
                "part.vlm:4: error: Cannot evaluate USE expression\n"
                "part.vlm:4: note: repeated 3 times\n"
                "scene.vlm:9: error: Field nowhere not found\n"},
        Folding{"json",
                "{\"file\":\"scene.vlm\",\"line\":6,\"severity\":\"error\",\"message\":\"Field wrong not found\",\"repeat\":3}\n"
                "{\"file\":\"scene.vlm\",\"line\":6,\"severity\":\"error\",\"message\":\"Field wrong not found\"}\n"
                "{\"file\":\"scene.vlm\",\"line\":6,\"severity\":\"error\",\"message\":\"Field wrong not found\"}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Field position not found\",\"repeat\":3}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Cannot evaluate USE expression\",\"repeat\":3}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Field position not found\"}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Cannot evaluate USE expression\"}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Field position not found\"}\n"
                "{\"file\":\"part.vlm\",\"line\":4,\"severity\":\"error\",\"message\":\"Cannot evaluate USE expression\"}\n"
                "{\"file\":\"scene.vlm\",\"line\":9,\"severity\":\"error\",\"message\":\"Field nowhere not found\"}\n"},
        Folding{"hints",
                "error: File \"scene.vlm\" Line 6: Field wrong not found\n"
                "note: repeated 3 times\n"
                "error: Line 4: Field position not found\n"
                "note: repeated 3 times\n"
                "error: Line 4: Cannot evaluate USE expression\n"
                "note: repeated 3 times\n"
                "error: File \"scene.vlm\" Line 9: Field nowhere not found\n"},
        Folding{"plain",
                "error: File \"scene.vlm\" Line 6: Field wrong not found\n"
                "error: File \"scene.vlm\" Line 6: Field wrong not found\n"
                "error: File \"scene.vlm\" Line 6: Field wrong not found\n"
                "error: Line 4: Field position not found\n"
                "error: Line 4: Cannot evaluate USE expression\n"
                "error: Line 4: Field position not found\n"
                "error: Line 4: Cannot evaluate USE expression\n"
                "error: Line 4: Field position not found\n"
                "error: Line 4: Cannot evaluate USE expression\n"
                "error: File \"scene.vlm\" Line 9: Field nowhere not found\n"}),
    [](const testing::TestParamInfo<Folding>& test) { return std::string(test.param.format); });

// Messages that differ are each printed, in order, even inside one LOOP.
TEST(RepeatedMessages, DifferentTextsStayApart) {
  ScratchDir dir;
  dir.write("scene.vlm",
            "#VRML V1.0 ascii\n"
            "Separator {\n"
            "\tLOOP {\n"
            "\t\tfields [ SFFloat start, SFFloat end, SFFloat position ]\n"
            "\t\tstart 0 end 2 position 0\n"
            "\t\tPRINT position\n"
            "\t}\n"
            "}\n");
  const CommandResult run = runLumeric({"--lint", "--message-format", "gnu", "scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "scene.vlm:6: note: position is 0\nscene.vlm:6: note: position is 1\n");
}

}  // namespace
}  // namespace lumeric
