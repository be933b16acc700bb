// The lumeric command: options in, one library call, exit status out.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/Dependencies.h"
#include "cli/StderrView.h"
#include "core/RunState.h"
#include "driver/Translation.h"
#include "lumeric/lumeric.h"

#ifndef LUMERIC_VERSION
#define LUMERIC_VERSION "unknown"
#endif

namespace {

int usageError(const std::string& error) {
  std::fprintf(stderr, "lumeric: %s\nTry 'lumeric --help' for more information.\n", error.c_str());
  return 2;
}

// The input as the run opened it: as given, else under the -d directory.
std::string openedInput(const lumeric::CommandLine& line) {
  if (FILE* file = std::fopen(line.input.c_str(), "r")) {
    std::fclose(file);
    return line.input;
  }
  return line.directory + line.input;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace lumeric;
  CommandLine line;
  std::string error;
  if (!parseCommandLine(argc, argv, line, error)) return usageError(error);
  if (line.action == CommandLine::kHelp) {
    std::fputs(kUsageText, stdout);
    return 0;
  }
  if (line.action == CommandLine::kVersion) {
    std::printf("lumeric %s\n", LUMERIC_VERSION);
    return 0;
  }

  gWarn = line.warnings;
  theRun.limits = line.limits;
  StderrView view(line.messageFormat);
  std::vector<char> input(line.input.begin(), line.input.end());
  input.push_back('\0');
  std::vector<char> directory(line.directory.begin(), line.directory.end());
  directory.push_back('\0');

  // The dependency file is opened first, so that one that cannot be
  // written stops the command before anything is translated.
  FILE* deps = nullptr;
  if (!line.depsFile.empty() && (deps = std::fopen(line.depsFile.c_str(), "w")) == nullptr) {
    return usageError("cannot write " + line.depsFile + ": " + std::strerror(errno));
  }
  RunAdditions additions;
  additions.overrides = line.overrides;
  char outputName[kOutputNameSize] = "";
  if (line.action == CommandLine::kCheck) {
    checkScene(input.data(), &view, directory.data(), line.fileType.c_str(), &additions);
  } else {
    OutputOverride output;
    if (line.outputSet) {
      if (line.output == "-") {
        output.stream = stdout;
      } else {
        output.path = line.output.c_str();
      }
    }
    translateScene(input.data(), &view, directory.data(), outputName, line.outputSet ? &output : nullptr,
                   &additions);
  }
  if (!additions.overrideError.empty()) {
    if (deps != nullptr) {
      std::fclose(deps);
      std::remove(line.depsFile.c_str());
    }
    return usageError(additions.overrideError);
  }
  if (deps != nullptr) {
    std::vector<std::string> files{openedInput(line)};
    files.insert(files.end(), additions.includedFiles.begin(), additions.includedFiles.end());
    std::string rule = dependencyRule(line.outputSet ? line.output : outputName, files);
    bool written = std::fputs(rule.c_str(), deps) >= 0;
    if (std::fclose(deps) != 0 || !written) return usageError("cannot write " + line.depsFile);
  }
  return view.errorCount() > 0 ? 1 : 0;
}
