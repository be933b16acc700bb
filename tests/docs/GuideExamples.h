// The examples of the language guide (docs/language.md), taken out of the
// Markdown text.  An example is a fenced block tagged `vlm` (the scene,
// run as scene.vlm) followed, before the next `vlm` block, by at most one
// block tagged `output` (the translated text after the two header lines)
// and at most one tagged `messages` (standard error, exactly).  A missing
// `messages` block means the scene translates without a message.  A block
// tagged `vlm NAME` is a further file, written as NAME beside scene.vlm,
// for the next example (for INCLUDE).  Other blocks are prose.
#ifndef LUMERIC_TESTS_DOCS_GUIDEEXAMPLES_H
#define LUMERIC_TESTS_DOCS_GUIDEEXAMPLES_H

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace lumeric {

struct GuideExample {
  int line = 0;  // where the scene's block starts in the guide
  std::string scene;
  std::vector<std::pair<std::string, std::string>> files;  // name, text
  bool hasOutput = false;
  std::string output;
  bool hasMessages = false;
  std::string messages;
};

// Takes the examples out of `markdown`.  A block that breaks the
// convention (an `output` block with no scene before it, a second `output`
// block for one scene, an unclosed fence) is described in `problems`.
std::vector<GuideExample> extractGuideExamples(const std::string& markdown, std::vector<std::string>& problems);

// Names an example by its place in the guide in test messages.
void PrintTo(const GuideExample& example, std::ostream* out);

}  // namespace lumeric

#endif  // LUMERIC_TESTS_DOCS_GUIDEEXAMPLES_H
