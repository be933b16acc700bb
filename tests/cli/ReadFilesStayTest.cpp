// No result of a run replaces a file the run reads: not the input under any
// spelling or link, not an included file, whether -o, --deps, OUTPUT_TO or
// the default output.wrl names it.
#include <gtest/gtest.h>

#include <dirent.h>
#include <unistd.h>

#include <set>
#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kScene = "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE parts/cup.wrl\n\tCube { width 3 }\n}\n";
const std::string kPart = "#VRML V1.0 ascii\nCone { height 4 }\n";

// Every file below `root`, as paths relative to it.
void collectFiles(const std::string& root, const std::string& prefix, std::set<std::string>& files) {
  DIR* dir = opendir((root + "/" + prefix).c_str());
  if (dir == nullptr) return;
  while (dirent* entry = readdir(dir)) {
    const std::string name = entry->d_name;
    if (name == "." || name == "..") continue;
    files.insert(prefix + name);
    if (entry->d_type == DT_DIR) collectFiles(root, prefix + name + "/", files);
  }
  closedir(dir);
}

std::set<std::string> filesBelow(const std::string& root) {
  std::set<std::string> files;
  collectFiles(root, "", files);
  return files;
}

TEST(ReadFilesStay, NoResultReplacesAFileTheRunReads) {
  struct {
    const char* what;
    std::vector<std::string> arguments;
    std::string shellSetUp;
    std::string refused;  // the name in the message
    std::vector<std::string> written;  // files the run may add
  } cases[] = {
      {"-o onto the input", {"-o", "scene.vlm", "scene.vlm"}, "", "scene.vlm", {}},
      {"-o onto the input spelt otherwise", {"-o", "./parts/../scene.vlm", "scene.vlm"}, "", "./parts/../scene.vlm", {}},
      {"-o onto an included file", {"-o", "parts/cup.wrl", "scene.vlm"}, "", "parts/cup.wrl", {}},
      {"-o onto a link to the input", {"-o", "link.vlm", "scene.vlm"}, "", "link.vlm", {}},
      {"-o onto a hard link to the input", {"-o", "hard.vlm", "scene.vlm"}, "", "hard.vlm", {}},
      {"-o onto the file standard input is", {"-o", "scene.vlm", "-"}, "exec <scene.vlm; ", "scene.vlm", {}},
      {"--deps onto the input", {"--deps", "scene.vlm", "-o", "out.wrl", "scene.vlm"}, "", "scene.vlm", {"out.wrl"}},
      {"--deps onto an included file",
       {"--deps", "parts/cup.wrl", "-o", "out.wrl", "scene.vlm"},
       "",
       "parts/cup.wrl",
       {"out.wrl"}},
      {"output.wrl as the input", {"output.wrl"}, "", "output.wrl", {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    ScratchDir dir;
    dir.write("scene.vlm", kScene);
    dir.write("output.wrl", kScene);
    dir.write("parts/cup.wrl", kPart);
    ASSERT_EQ(symlink("scene.vlm", (dir.path() + "/link.vlm").c_str()), 0);
    ASSERT_EQ(link((dir.path() + "/scene.vlm").c_str(), (dir.path() + "/hard.vlm").c_str()), 0);
    std::set<std::string> before = filesBelow(dir.path());
    CommandResult run = runLumeric(c.arguments, dir.path(), c.shellSetUp);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "error: Refusing to overwrite " + c.refused + ", which this run reads\n");
    EXPECT_EQ(dir.read("scene.vlm"), kScene);
    EXPECT_EQ(dir.read("output.wrl"), kScene);
    EXPECT_EQ(dir.read("parts/cup.wrl"), kPart);
    before.insert(c.written.begin(), c.written.end());
    EXPECT_EQ(filesBelow(dir.path()), before) << "no temporary file is left";
  }
}

TEST(ReadFilesStay, OutputToMeetsTheFileItNamesIncludedLater) {
  ScratchDir dir;
  const std::string scene = "#VRML V1.0 ascii\nSeparator {\n\tOUTPUT_TO parts/cup.wrl\n\tINCLUDE parts/cup.wrl\n}\n";
  dir.write("scene.vlm", scene);
  dir.write("parts/cup.wrl", kPart);
  CommandResult run = runLumeric({"scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "error: Refusing to overwrite parts/cup.wrl, which this run reads\n");
  EXPECT_EQ(dir.read("parts/cup.wrl"), kPart);
  EXPECT_EQ(filesBelow(dir.path()), (std::set<std::string>{"parts", "parts/cup.wrl", "scene.vlm"}));
}

TEST(ReadFilesStay, FilesTheRunDoesNotReadAreReplaced) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  dir.write("parts/cup.wrl", kPart);
  dir.write("parts/other.wrl", kPart);
  CommandResult run = runLumeric({"--deps", "parts/other.d", "-o", "parts/other.wrl", "scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_NE(dir.read("parts/other.wrl").find("height 4"), std::string::npos);
  EXPECT_EQ(dir.read("parts/other.d"), "parts/other.wrl: scene.vlm parts/cup.wrl\n\nparts/cup.wrl:\n");
}

}  // namespace
}  // namespace lumeric
