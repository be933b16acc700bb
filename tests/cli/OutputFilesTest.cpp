// What a run does to files: a result replaces its target only when it was
// written whole, write errors are reported, the input is never destroyed,
// and the comment line stays one line.
#include <gtest/gtest.h>

#include <dirent.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kCube = "#VRML V1.0 ascii\nCube { width 3 }\n";
const char kGood[] = "a good result from an earlier run\n";
// Writes fail past one kilobyte, and the signal that would kill the
// process at that moment is ignored.
const char kSmallFileLimit[] = "ulimit -f 1; trap '' XFSZ; ";

bool contains(const std::string& text, const std::string& piece) { return text.find(piece) != std::string::npos; }

// A scene whose output is far larger than a kilobyte.
std::string bigScene(const std::string& firstStatement) {
  std::string scene = "#VRML V1.0 ascii\nSeparator {\n" + firstStatement;
  for (int i = 0; i < 200; ++i) scene += "Cube { width " + std::to_string(i) + " }\n";
  return scene + "}\n";
}

std::vector<std::string> filesIn(const std::string& path) {
  std::vector<std::string> names;
  if (DIR* dir = opendir(path.c_str())) {
    while (dirent* entry = readdir(dir)) {
      std::string name = entry->d_name;
      if (name != "." && name != "..") names.push_back(name);
    }
    closedir(dir);
  }
  return names;
}

TEST(OutputFiles, AFailedWriteLeavesTheEarlierResultInPlace) {
  struct {
    const char* what;
    std::string scene;
    std::vector<std::string> arguments;
    const char* target;
  } cases[] = {
      {"default", bigScene(""), {"scene.vlm"}, "output.wrl"},
      {"-o", bigScene(""), {"-o", "chosen.wrl", "scene.vlm"}, "chosen.wrl"},
      {"OUTPUT_TO", bigScene("OUTPUT_TO named.wrl\n"), {"scene.vlm"}, "named.wrl"},
  };
  for (const auto& c : cases) {
    ScratchDir dir;
    dir.write("scene.vlm", c.scene);
    dir.write(c.target, kGood);
    CommandResult run = runLumeric(c.arguments, dir.path(), kSmallFileLimit);
    EXPECT_EQ(run.status, 1) << c.what;
    EXPECT_EQ(run.err, "error: Could not write " + std::string(c.target) + " - Error # 27\n") << c.what;
    EXPECT_EQ(dir.read(c.target), kGood) << c.what;
    EXPECT_EQ(filesIn(dir.path()).size(), 2u) << c.what << ": the temporary file is removed";
  }
}

TEST(OutputFiles, ASuccessfulRunReplacesTheResultAndKeepsItsPermissions) {
  ScratchDir dir;
  dir.write("scene.vlm", kCube);
  std::string target = dir.write("output.wrl", kGood);
  chmod(target.c_str(), 0640);
  CommandResult run = runLumeric({"scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(contains(dir.read("output.wrl"), "\twidth 3\n"));
  struct stat status;
  ASSERT_EQ(stat(target.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);
  EXPECT_EQ(filesIn(dir.path()).size(), 2u);
}

TEST(OutputFiles, WriteErrorsOfStreamsAndDevicesAreReported) {
  ScratchDir dir;
  dir.write("scene.vlm", kCube);
  // Standard output is the full device; the messages go to a file.
  std::string command = "cd '" + dir.path() + "' && '" LUMERIC_CLI_PATH "' -o - scene.vlm >/dev/full 2>err";
  int exit = std::system(command.c_str());
  ASSERT_TRUE(WIFEXITED(exit));
  EXPECT_EQ(WEXITSTATUS(exit), 1);
  EXPECT_EQ(dir.read("err"), "error: Could not write standard output - Error # 28\n");
  // A device is written where it is, never replaced by a file.
  CommandResult toDevice = runLumeric({"-o", "/dev/full", "scene.vlm"}, dir.path());
  EXPECT_EQ(toDevice.status, 1);
  EXPECT_EQ(toDevice.err, "error: Could not write /dev/full - Error # 28\n");
  struct stat status;
  ASSERT_EQ(stat("/dev/full", &status), 0);
  EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST(OutputFiles, OutputToNeverReplacesTheSceneBeingRead) {
  // The scene is found where it is given, or through -d under another
  // directory; either way OUTPUT_TO may not name it.
  struct Case {
    const char* sceneFile;
    std::vector<std::string> arguments;
  } cases[] = {
      {"scene.vlm", {"scene.vlm"}},
      {"scenes/scene.vlm", {"-d", "scenes/", "scene.vlm"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.sceneFile);
    ScratchDir dir;
    const std::string scene = std::string("#VRML V1.0 ascii\nGroup {\n\tOUTPUT_TO ") + c.sceneFile +
                              "\n\tCube { width 3 }\n}\n";
    dir.write(c.sceneFile, scene);
    CommandResult run = runLumeric(c.arguments, dir.path());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, std::string("error: File \"scene.vlm\" Line 4: Cannot OUTPUT_TO file ") + c.sceneFile +
                           " - File is being read\n");
    EXPECT_EQ(dir.read(c.sceneFile), scene);
    EXPECT_TRUE(contains(dir.read("output.wrl"), "\t\twidth 3\n"));
  }
}

TEST(OutputFiles, TheCommentLineShowsControlCharactersOfThePathAsQuestionMarks) {
  ScratchDir dir;
  dir.write("two\nlines\t.vlm", kCube);
  CommandResult run = runLumeric({"-o", "-", "two\nlines\t.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(contains(run.out, "\n#Generated by VRMLLumeric from two?lines?.vlm\n\nCube {\n")) << run.out;
}

}  // namespace
}  // namespace lumeric
