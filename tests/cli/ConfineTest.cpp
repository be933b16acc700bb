// --confine: INCLUDE reads and OUTPUT_TO writes only regular files inside
// the input's directory tree, whatever ".." or links say.
#include <gtest/gtest.h>

#include <unistd.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kPart = "#VRML V1.0 ascii\nCube { width 7 }\n";

std::string sceneWith(const std::string& statement) {
  return "#VRML V1.0 ascii\nGroup {\n\t" + statement + "\n\tSphere { }\n}\n";
}

TEST(Confine, RefusesFilesOutsideTheInputsDirectory) {
  ScratchDir dir;
  dir.write("outside.inc.wrl", kPart);
  dir.write("scenes/inside.inc.wrl", kPart);
  dir.write("scenes/sub/deeper.inc.wrl", kPart);
  ASSERT_EQ(symlink("../outside.inc.wrl", (dir.path() + "/scenes/link.inc.wrl").c_str()), 0);
  ASSERT_EQ(symlink("..", (dir.path() + "/scenes/up").c_str()), 0);
  const std::string absolute = dir.path() + "/outside.inc.wrl";
  struct {
    std::string statement;
    std::string message;  // empty: allowed
  } cases[] = {
      {"INCLUDE scenes/inside.inc.wrl", ""},
      {"INCLUDE scenes/sub/../sub/deeper.inc.wrl", ""},
      {"INCLUDE " + absolute, "Cannot INCLUDE file " + absolute + " - Outside the input's directory"},
      {"INCLUDE scenes/../outside.inc.wrl",
       "Cannot INCLUDE file scenes/../outside.inc.wrl - Outside the input's directory"},
      {"INCLUDE scenes/link.inc.wrl", "Cannot INCLUDE file scenes/link.inc.wrl - Outside the input's directory"},
      {"INCLUDE scenes/sub", "Cannot INCLUDE file scenes/sub - Not a regular file"},
      {"INCLUDE /dev/zero", "Cannot INCLUDE file /dev/zero - Outside the input's directory"},
      {"OUTPUT_TO scenes/sub/result.wrl", ""},
      {"OUTPUT_TO scenes/up/escaped.wrl",
       "Cannot OUTPUT_TO file scenes/up/escaped.wrl - Outside the input's directory"},
      {"OUTPUT_TO scenes/../escaped.wrl",
       "Cannot OUTPUT_TO file scenes/../escaped.wrl - Outside the input's directory"},
      {"OUTPUT_TO scenes/link.inc.wrl",
       "Cannot OUTPUT_TO file scenes/link.inc.wrl - Outside the input's directory"},
  };
  for (const auto& c : cases) {
    dir.write("scenes/scene.vlm", sceneWith(c.statement));
    CommandResult run = runLumeric({"--confine", "scenes/scene.vlm"}, dir.path());
    if (c.message.empty()) {
      EXPECT_EQ(run.status, 0) << c.statement;
      EXPECT_EQ(run.err, "") << c.statement;
      continue;
    }
    EXPECT_EQ(run.status, 1) << c.statement;
    EXPECT_NE(run.err.find(c.message), std::string::npos) << c.statement << "\n" << run.err;
  }
  EXPECT_TRUE(dir.exists("scenes/sub/result.wrl"));
  EXPECT_FALSE(dir.exists("escaped.wrl"));
  EXPECT_EQ(dir.read("outside.inc.wrl"), kPart);
}

}  // namespace
}  // namespace lumeric
