// Helpers that run whole scenes: in the process through the driver, or
// through the lumeric command as a user would.
#ifndef LUMERIC_TESTS_SUPPORT_SCENERUNNER_H
#define LUMERIC_TESTS_SUPPORT_SCENERUNNER_H

#include <string>
#include <vector>

namespace lumeric {

struct SceneResult {
  int result = -1;         // what the entry point returned
  std::string output;      // the written scene
  std::string messages;    // the transcript, as the command line prints it
};

// A scratch directory for one test, removed with the object.
class ScratchDir {
 public:
  ScratchDir();
  ~ScratchDir();
  ScratchDir(const ScratchDir&) = delete;
  ScratchDir& operator=(const ScratchDir&) = delete;
  const std::string& path() const { return path_; }
  // Writes `content` to `name` inside the directory, making the directories
  // `name` names; returns the full path.
  std::string write(const std::string& name, const std::string& content) const;
  std::string read(const std::string& name) const;
  bool exists(const std::string& name) const;

 private:
  std::string path_;
};

std::string readFile(const std::string& path);
bool writeFile(const std::string& path, const std::string& content);

// Translates `sceneText` (written to a scratch file named `fileName`) and
// captures the output written to a memory stream.
SceneResult translateText(const std::string& sceneText, const std::string& fileName = "scene.vlm");
// CheckSyntax on `sceneText` with the given file type.
SceneResult checkText(const std::string& sceneText, const char* fileType, const std::string& fileName = "scene.vlm");

// Runs the lumeric command with `arguments` in `workDir`; `shellSetUp`
// (shell commands ending in ";") runs first in the same shell.
struct CommandResult {
  int status = -1;
  std::string out;
  std::string err;
};
CommandResult runLumeric(const std::vector<std::string>& arguments, const std::string& workDir,
                         const std::string& shellSetUp = "");

// Whether `piece` occurs in `text`.
inline bool contains(const std::string& text, const std::string& piece) {
  return text.find(piece) != std::string::npos;
}

// A GoogleTest parameter name made from a file name: every character that
// is not a letter or digit becomes '_'.
std::string testIdFromFileName(const std::string& name);

}  // namespace lumeric

#endif  // LUMERIC_TESTS_SUPPORT_SCENERUNNER_H
