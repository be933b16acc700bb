// Golden scene tests: every scene file in this directory is translated by
// the lumeric command, and its exit status, messages and output are compared
// with the expectations kept beside it in NAME.expected.  Optional
// arguments come from NAME.args.  Every output must also load in the
// independent VRML 1.0 reader.  refresh.sh rewrites the expectations.
#include <dirent.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "support/SceneRunner.h"
#include "tools/IndependentReader.h"

namespace lumeric {
namespace {

const std::string kSceneDir = LUMERIC_TEST_DIR "/scenes";

bool endsWith(const std::string& text, const std::string& tail) {
  return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

// Scene files are *.vlm and *.wrl; files named *.inc.* are only included
// by others.
std::vector<std::string> discoverScenes() {
  std::vector<std::string> names;
  if (DIR* dir = opendir(kSceneDir.c_str())) {
    while (dirent* entry = readdir(dir)) {
      std::string name = entry->d_name;
      if ((endsWith(name, ".vlm") || endsWith(name, ".wrl")) && name.find(".inc.") == std::string::npos) {
        names.push_back(name);
      }
    }
    closedir(dir);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string stem(const std::string& name) { return name.substr(0, name.find_last_of('.')); }

std::vector<std::string> readArguments(const std::string& name) {
  std::vector<std::string> arguments;
  std::istringstream words(readFile(kSceneDir + "/" + stem(name) + ".args"));
  std::string word;
  while (words >> word) arguments.push_back(word);
  return arguments;
}

// What a run gives, in the form of the expectation files.
std::string describe(const CommandResult& run) {
  return "status: " + std::to_string(run.status) + "\n--- messages\n" + run.err + "--- output\n" + run.out;
}

class SceneTest : public ::testing::TestWithParam<std::string> {};

TEST_P(SceneTest, MatchesItsExpectation) {
  const std::string name = GetParam();
  ScratchDir work;
  std::string copy = "cp -r '" + kSceneDir + "/.' '" + work.path() + "'";
  ASSERT_EQ(std::system(copy.c_str()), 0);
  std::vector<std::string> arguments = readArguments(name);
  if (std::find(arguments.begin(), arguments.end(), "--check") == arguments.end()) {
    arguments.push_back("-o");
    arguments.push_back("-");
  }
  arguments.push_back(name);
  CommandResult run = runLumeric(arguments, work.path());
  std::string expected = readFile(kSceneDir + "/" + stem(name) + ".expected");
  ASSERT_FALSE(expected.empty()) << "no expectation for " << name << "; run tests/scenes/refresh.sh";
  EXPECT_EQ(describe(run), expected);
  EXPECT_EQ(run.err.find("Sanitizer"), std::string::npos) << run.err;
  // What we write must be VRML 1.0 that another reader loads, also when
  // reading stopped at an error and only part of the scene was written.
  // NAME.unreadable marks (and explains) the few outputs that by design do
  // not load, such as the error line of a USE without a name.
  if (!run.out.empty()) {
    if (readFile(kSceneDir + "/" + stem(name) + ".unreadable").empty()) {
      EXPECT_TRUE(LoadsInIndependentReader(run.out));
    } else if (IndependentReaderAvailable()) {
      EXPECT_FALSE(LoadsInIndependentReader(run.out));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Scenes, SceneTest, ::testing::ValuesIn(discoverScenes()),
                         [](const ::testing::TestParamInfo<std::string>& tested) { return testIdFromFileName(tested.param); });

}  // namespace
}  // namespace lumeric
