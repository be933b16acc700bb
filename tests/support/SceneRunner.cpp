#include "support/SceneRunner.h"

#include <cctype>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "driver/Translation.h"
#include "support/RecordingView.h"

namespace lumeric {

ScratchDir::ScratchDir() {
  char pattern[] = "/tmp/lumeric-test-XXXXXX";
  char* made = mkdtemp(pattern);
  path_ = made != nullptr ? made : "/tmp";
}

ScratchDir::~ScratchDir() {
  std::string command = "rm -rf '" + path_ + "'";
  if (path_ != "/tmp") (void)std::system(command.c_str());
}

std::string ScratchDir::write(const std::string& name, const std::string& content) const {
  std::string full = path_ + "/" + name;
  size_t slash = name.find_last_of('/');
  if (slash != std::string::npos) std::system(("mkdir -p '" + path_ + "/" + name.substr(0, slash) + "'").c_str());
  writeFile(full, content);
  return full;
}

std::string ScratchDir::read(const std::string& name) const { return readFile(path_ + "/" + name); }

bool ScratchDir::exists(const std::string& name) const {
  struct stat info;
  return stat((path_ + "/" + name).c_str(), &info) == 0;
}

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool writeFile(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary);
  out << content;
  return static_cast<bool>(out);
}

namespace {

// Runs `body` with the working directory set to `dir`.
template <typename Body>
void inDirectory(const std::string& dir, Body body) {
  char previous[4096];
  if (getcwd(previous, sizeof previous) == nullptr) previous[0] = '\0';
  if (chdir(dir.c_str()) != 0) return;
  body();
  if (previous[0] != '\0' && chdir(previous) != 0) std::perror("chdir");
}

}  // namespace

SceneResult translateText(const std::string& sceneText, const std::string& fileName) {
  ScratchDir dir;
  dir.write(fileName, sceneText);
  SceneResult result;
  RecordingView view;
  char* buffer = nullptr;
  size_t size = 0;
  FILE* memory = open_memstream(&buffer, &size);
  inDirectory(dir.path(), [&] {
    OutputOverride output;
    output.stream = memory;
    char name[256] = "";
    std::string path = fileName;
    result.result = translateScene(path.c_str(), &view, "", name, &output);
  });
  std::fclose(memory);
  result.output.assign(buffer, size);
  std::free(buffer);
  result.messages = view.transcript();
  return result;
}

SceneResult checkText(const std::string& sceneText, const char* fileType, const std::string& fileName) {
  ScratchDir dir;
  dir.write(fileName, sceneText);
  SceneResult result;
  RecordingView view;
  inDirectory(dir.path(), [&] { result.result = checkScene(fileName.c_str(), &view, "", fileType); });
  result.messages = view.transcript();
  return result;
}

CommandResult runLumeric(const std::vector<std::string>& arguments, const std::string& workDir,
                         const std::string& shellSetUp) {
  ScratchDir capture;
  std::string command = "cd '" + workDir + "' && " + shellSetUp + "'" LUMERIC_CLI_PATH "'";
  for (const std::string& a : arguments) {
    std::string quoted;
    for (char c : a) {
      if (c == '\'') {
        quoted += "'\\''";
      } else {
        quoted += c;
      }
    }
    command += " '" + quoted + "'";
  }
  command += " >'" + capture.path() + "/out' 2>'" + capture.path() + "/err'";
  CommandResult result;
  int status = std::system(command.c_str());
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  result.out = capture.read("out");
  result.err = capture.read("err");
  return result;
}

std::string testIdFromFileName(const std::string& name) {
  std::string id;
  for (char c : name) id += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  return id;
}

}  // namespace lumeric
