// No result of a run replaces a file the run reads: not the input under any
// spelling or link, not an included file, whether -o, --deps, OUTPUT_TO or
// the default output.wrl names it.
#include <gtest/gtest.h>

#include <dirent.h>
#include <unistd.h>

#include <set>
#include <string>
#include <utility>
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

// OUTPUT_TO may not name a file the run reads, however it was found: the
// statement is refused and the translation goes on to output.wrl; a file
// included after the statement is met at writing time, and nothing is
// written.
TEST(ReadFilesStay, OutputToNeverNamesAFileTheRunReads) {
  const std::string header = "#VRML V1.0 ascii\nSeparator {\n\t";
  struct {
    const char* what;
    std::vector<std::pair<std::string, std::string>> files;
    std::vector<std::string> arguments;
    std::string err;
    const char* fallback;  // what output.wrl holds; "" when it is not written
  } cases[] = {
      {"the input",
       {{"scene.vlm", header + "OUTPUT_TO scene.vlm\n\tCube { width 3 }\n}\n"}},
       {"scene.vlm"},
       "error: File \"scene.vlm\" Line 4: Cannot OUTPUT_TO file scene.vlm - File is being read\n",
       "width 3"},
      {"the input found under -d",
       {{"scenes/scene.vlm", header + "OUTPUT_TO scenes/scene.vlm\n\tCube { width 3 }\n}\n"}},
       {"-d", "scenes/", "scene.vlm"},
       "error: File \"scene.vlm\" Line 4: Cannot OUTPUT_TO file scenes/scene.vlm - File is being read\n",
       "width 3"},
      {"an included file found beside the scene",
       {{"mk/scene.vlm", header + "INCLUDE cup.wrl\n\tOUTPUT_TO mk/cup.wrl\n}\n"}, {"mk/cup.wrl", kPart}},
       {"mk/scene.vlm"},
       "error: File \"mk/scene.vlm\" Line 5: Cannot OUTPUT_TO file mk/cup.wrl - File is being read\n",
       "height 4"},
      {"a file included after the statement",
       {{"scene.vlm", header + "OUTPUT_TO parts/cup.wrl\n\tINCLUDE parts/cup.wrl\n}\n"}, {"parts/cup.wrl", kPart}},
       {"scene.vlm"},
       "error: Refusing to overwrite parts/cup.wrl, which this run reads\n",
       ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    ScratchDir dir;
    for (const auto& file : c.files) dir.write(file.first, file.second);
    std::set<std::string> expected = filesBelow(dir.path());
    CommandResult run = runLumeric(c.arguments, dir.path());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, c.err);
    for (const auto& file : c.files) EXPECT_EQ(dir.read(file.first), file.second);
    if (*c.fallback != '\0') {
      expected.insert("output.wrl");
      EXPECT_TRUE(contains(dir.read("output.wrl"), c.fallback));
    }
    EXPECT_EQ(filesBelow(dir.path()), expected);
  }
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
