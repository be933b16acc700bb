// --lint runs the whole translation and writes nothing: it reports what
// only evaluation finds, which --check (reading and expansion alone) does
// not, and it leaves no output behind, not even one OUTPUT_TO names.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const char kScene[] =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "\tOUTPUT_TO \"chosen.wrl\"\n"
    "\tMaterial { diffuseColor =Colour(\"red\") }\n"
    "\tCube { width =1/0 }\n"
    "}\n";

TEST(Lint, ReportsWhatEvaluationFindsAndWritesNothing) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);

  const CommandResult check = runLumeric({"--check", "scene.vlm"}, dir.path());
  EXPECT_EQ(check.status, 0) << check.err;

  const CommandResult lint = runLumeric({"--lint", "--message-format", "gnu", "scene.vlm"}, dir.path());
  EXPECT_EQ(lint.status, 1);
  EXPECT_NE(lint.err.find("scene.vlm:4: error: Function Colour(...) not found"), std::string::npos) << lint.err;
  EXPECT_NE(lint.err.find("scene.vlm:5: error:"), std::string::npos) << lint.err;
  EXPECT_EQ(lint.out, "");
  EXPECT_FALSE(dir.exists("chosen.wrl"));
  EXPECT_FALSE(dir.exists("output.wrl"));
}

}  // namespace
}  // namespace lumeric
