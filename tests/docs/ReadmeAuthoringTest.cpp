// The README's Authoring section shows a scene and what `lumeric --watch
// --message-format gnu` prints for it; the command must print exactly that,
// the time of day and the duration of the summary line aside.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kReadme = LUMERIC_TEST_DIR "/../README.md";

// The text of the first block fenced with ```TAG after `from`.
std::string fencedBlock(const std::string& text, size_t from, const std::string& tag) {
  const std::string fence = "```" + tag + "\n";
  const size_t start = text.find(fence, from);
  if (start == std::string::npos) return "";
  const size_t end = text.find("```\n", start + fence.size());
  return end == std::string::npos ? "" : text.substr(start + fence.size(), end - start - fence.size());
}

// The summary line with its time of day and duration taken out:
// "lumeric: [T] ... (T ms)".
std::string withoutClock(std::string messages) {
  const size_t summary = messages.find("lumeric: [");
  if (summary == std::string::npos) return messages;
  const size_t close = messages.find(']', summary);
  if (close != std::string::npos) messages.replace(summary + 10, close - summary - 10, "T");
  const size_t open = messages.rfind('(');
  const size_t ms = messages.rfind(" ms)");
  if (open != std::string::npos && ms != std::string::npos && open < ms) messages.replace(open + 1, ms - open - 1, "T");
  return messages;
}

TEST(ReadmeAuthoring, TheWatchedSceneGivesTheMessagesShown) {
  const std::string readme = readFile(kReadme);
  const size_t section = readme.find("\n## Authoring\n");
  ASSERT_NE(section, std::string::npos);
  const std::string scene = fencedBlock(readme, section, "vlm");
  const std::string shown = fencedBlock(readme, section, "messages");
  ASSERT_FALSE(scene.empty());
  ASSERT_NE(shown.find("lumeric: ["), std::string::npos) << shown;

  ScratchDir dir;
  dir.write("scene.vlm", scene);
  // The first run, then SIGINT: what a user sees before the first save.
  const CommandResult run =
      runLumeric({"--watch", "--message-format", "gnu", "-o", "scene.glb", "scene.vlm"}, dir.path(), "timeout -s INT 8 ");
  EXPECT_EQ(withoutClock(run.err), withoutClock(shown));
  EXPECT_TRUE(dir.exists("scene.glb"));
}

}  // namespace
}  // namespace lumeric
