// Every golden scene (tests/scenes/) translated in one process, forwards
// then backwards, each run after others, must give exactly its expectation:
// state that one run leaves behind and the next one reads is caught.  What
// outlives runs by design (the PRECISION step, the random generator, the
// host's warning bits and limits) is set back before each scene, as the
// playground does before each request.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "core/LastingState.h"
#include "core/RunState.h"
#include "driver/Translation.h"
#include "expr/functions/RandomGenerator.h"
#include "lumeric/lumeric.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

namespace fs = std::filesystem;

const std::string kSceneDir = LUMERIC_TEST_DIR "/scenes";

std::vector<std::string> goldenScenes() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kSceneDir)) {
    const std::string name = entry.path().filename().string();
    const std::string extension = entry.path().extension().string();
    if ((extension == ".vlm" || extension == ".wrl") && name.find(".inc.") == std::string::npos) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string stem(const std::string& name) { return name.substr(0, name.find_last_of('.')); }

// The command line of the scene's golden test, parsed as the command does.
CommandLine commandLineOf(const std::string& name) {
  std::vector<std::string> words = {"lumeric"};
  std::istringstream arguments(readFile(kSceneDir + "/" + stem(name) + ".args"));
  for (std::string word; arguments >> word;) words.push_back(word);
  bool check = std::find(words.begin(), words.end(), "--check") != words.end();
  if (!check) words.insert(words.end(), {"-o", "-"});
  words.push_back(name);
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(&word[0]);
  CommandLine line;
  std::string error;
  EXPECT_TRUE(parseCommandLine(static_cast<int>(argv.size()), argv.data(), line, error)) << name << ": " << error;
  return line;
}

// One run of `name` in the current directory, described as the golden
// test's expectation files describe a run of the command.
std::string runInProcess(const std::string& name) {
  CommandLine line = commandLineOf(name);
  gWarn = line.warnings;
  theRun.limits = line.limits;
  RecordingView view;
  RunAdditions additions;
  additions.includeDirectories = line.includeDirectories;
  std::string output;
  if (line.action == CommandLine::kCheck) {
    checkScene(name.c_str(), &view, "", fileTypeOf(name).c_str(), &additions);
  } else {
    char* buffer = nullptr;
    size_t size = 0;
    OutputOverride stream;
    stream.stream = open_memstream(&buffer, &size);
    char outputName[kOutputNameSize] = "";
    translateScene(name.c_str(), &view, "", outputName, &stream, &additions);
    std::fclose(stream.stream);
    output.assign(buffer, size);
    std::free(buffer);
  }
  gWarn = 0;
  const int status = view.errorCount() > 0 ? 1 : 0;
  return "status: " + std::to_string(status) + "\n--- messages\n" + view.transcript() + "--- output\n" + output;
}

TEST(ManyRuns, EveryGoldenSceneGivesItsExpectationAfterOthers) {
  std::vector<std::string> scenes = goldenScenes();
  ASSERT_GE(scenes.size(), 50u);
  std::vector<std::string> order = scenes;
  order.insert(order.end(), scenes.rbegin(), scenes.rend());

  ScratchDir work;
  ASSERT_EQ(std::system(("cp -r '" + kSceneDir + "/.' '" + work.path() + "'").c_str()), 0);
  char previous[4096];
  ASSERT_NE(getcwd(previous, sizeof previous), nullptr);
  ASSERT_EQ(chdir(work.path().c_str()), 0);
  const double startQuantum = precisionQuantum;
  const uint32_t startRandom = randomState();
  for (size_t i = 0; i < order.size(); ++i) {
    const std::string& name = order[i];
    precisionQuantum = startQuantum;
    setRandomState(startRandom);
    const std::string expected = readFile(kSceneDir + "/" + stem(name) + ".expected");
    EXPECT_EQ(runInProcess(name), expected) << name << ", run " << i + 1 << " of the process";
  }
  precisionQuantum = startQuantum;
  setRandomState(startRandom);
  ASSERT_EQ(chdir(previous), 0);
}

// A process that translates again and again draws serials without end; a
// fuzz target overflowed them after about three million scenes.  They start
// again between runs once past kSerialRestart, and the runs after the
// restart give the same result, circular-reference guard included.
TEST(ManyRuns, SerialsStartAgainBetweenRunsLongBeforeTheyOverflow) {
  const std::string scene =
      "#VRML V1.0 ascii\nLOD { range [ range, 2 ] }\nCube { width =1+2 }\n";
  const int saved = expressionSerials;
  const SceneResult first = translateText(scene);
  ASSERT_TRUE(contains(first.messages, "Circular reference")) << first.messages;
  expressionSerials = kSerialRestart - 1;
  const SceneResult nearTheRestart = translateText(scene);
  EXPECT_LT(expressionSerials, kSerialRestart / 2);
  const SceneResult afterIt = translateText(scene);
  for (const SceneResult* again : {&nearTheRestart, &afterIt}) {
    EXPECT_EQ(again->output, first.output);
    EXPECT_EQ(again->messages, first.messages);
  }
  expressionSerials = saved;
}

}  // namespace
}  // namespace lumeric
