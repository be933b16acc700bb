// The lumeric command: options in, one library call, exit status out.
#include <cstdio>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/StderrView.h"
#include "core/RunState.h"
#include "driver/Translation.h"
#include "lumeric/lumeric.h"

#ifndef LUMERIC_VERSION
#define LUMERIC_VERSION "unknown"
#endif

int main(int argc, char** argv) {
  using namespace lumeric;
  CommandLine line;
  std::string error;
  if (!parseCommandLine(argc, argv, line, error)) {
    std::fprintf(stderr, "lumeric: %s\nTry 'lumeric --help' for more information.\n", error.c_str());
    return 2;
  }
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

  if (line.action == CommandLine::kCheck) {
    checkScene(input.data(), &view, directory.data(), line.fileType.c_str());
  } else {
    char outputName[kOutputNameSize] = "";
    OutputOverride output;
    if (line.outputSet) {
      if (line.output == "-") {
        output.stream = stdout;
      } else {
        output.path = line.output.c_str();
      }
    }
    translateScene(input.data(), &view, directory.data(), outputName, line.outputSet ? &output : nullptr);
  }
  return view.errorCount() > 0 ? 1 : 0;
}
