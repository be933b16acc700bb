// The lumeric command: options in, one library call (a translation or an
// export), exit status out.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/Dependencies.h"
#include "cli/StderrView.h"
#include "core/FileAccess.h"
#include "core/OutputFile.h"
#include "core/RunState.h"
#include "driver/Translation.h"
#include "driver/ExportRun.h"
#include "driver/SceneParameters.h"
#include "lumeric/lumeric.h"

#ifndef LUMERIC_VERSION
#define LUMERIC_VERSION "unknown"
#endif

namespace {

int usageError(const std::string& error) {
  std::fprintf(stderr, "lumeric: %s\nTry 'lumeric --help' for more information.\n", error.c_str());
  return 2;
}

// The input as the run opened it: as given, else under the -d directory;
// standard input by its --stdin-name, and by nothing without one.
std::vector<std::string> openedInput(const lumeric::CommandLine& line) {
  if (line.readsStandardInput()) {
    return line.stdinName.empty() ? std::vector<std::string>() : std::vector<std::string>{line.stdinName};
  }
  if (FILE* file = std::fopen(line.input.c_str(), "r")) {
    std::fclose(file);
    return {line.input};
  }
  return {line.directory + line.input};
}

// Writes the make rule of the run into the dependency file and puts it in
// place, unless the file is one the run read.  False when it cannot be
// written.
bool finishDependencies(lumeric::OutputFile& deps, const lumeric::CommandLine& line, const std::string& outputName,
                        const lumeric::RunAdditions& additions, lumeric::StderrView& view) {
  using namespace lumeric;
  if (isAmongFiles(line.depsFile.c_str(), additions.filesRead)) {
    deps.abandon();
    const std::string message = "Refusing to overwrite " + line.depsFile + ", which this run reads";
    view.post(message.c_str(), 1);
    return true;
  }
  std::vector<std::string> files = openedInput(line);
  const size_t sources = files.size();
  files.insert(files.end(), additions.includedFiles.begin(), additions.includedFiles.end());
  const std::string rule = dependencyRule(outputName, files, sources);
  bool written = std::fputs(rule.c_str(), deps.stream()) >= 0;
  int errorNumber = 0;
  return deps.commit(written ? 0 : EIO, errorNumber) == OutputFile::kReplaced;
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
  const std::string inputName = line.inputName();
  std::vector<char> input(inputName.begin(), inputName.end());
  input.push_back('\0');
  std::vector<char> directory(line.directory.begin(), line.directory.end());
  directory.push_back('\0');

  // The dependency file is opened first, so that one that cannot be
  // written stops the command before anything is translated.  Like the
  // result, it is written whole beside its target and put in place last.
  OutputFile deps;
  int errorNumber = 0;
  if (!line.depsFile.empty() && deps.open(line.depsFile.c_str(), errorNumber) == nullptr) {
    return usageError("cannot write " + line.depsFile + ": " + std::strerror(errorNumber));
  }
  RunAdditions additions;
  additions.overrides = line.overrides;
  additions.includeDirectories = line.includeDirectories;
  if (line.readsStandardInput()) additions.inputStream = stdin;
  char outputName[kOutputNameSize] = "";
  if (line.action == CommandLine::kCheck) {
    checkScene(input.data(), &view, directory.data(), line.fileType.c_str(), &additions);
  } else if (line.action == CommandLine::kLint) {
    // The whole translation, written nowhere: OUTPUT_TO opens nothing
    // either, since the command chose the output.
    OutputOverride output;
    output.stream = std::fopen("/dev/null", "w");
    if (output.stream == nullptr) return usageError(std::string("cannot open /dev/null: ") + std::strerror(errno));
    translateScene(input.data(), &view, directory.data(), outputName, &output, &additions);
    std::fclose(output.stream);
  } else if (line.action == CommandLine::kParameters) {
    std::vector<SceneParameter> parameters;
    listSceneParameters(input.data(), &view, &additions, parameters);
    if (additions.overrideError.empty()) std::fputs(parametersJson(parameters).c_str(), stdout);
  } else if (line.format != ExportFormat::kWrl) {
    ExportRequest request;
    request.inputPath = input.data();
    request.directory = directory.data();
    request.outputPath = line.output;
    if (line.output == "-") request.stream = stdout;
    request.format = line.format;
    request.options.tessellation = line.tessellation;
    request.additions = &additions;
    runExport(request, &view);
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
    deps.abandon();
    return usageError(additions.overrideError);
  }
  if (deps.isOpen() &&
      !finishDependencies(deps, line, line.outputSet ? line.output : outputName, additions, view)) {
    return usageError("cannot write " + line.depsFile);
  }
  const int problems = view.errorCount() + (line.warningsAreErrors ? view.warningCount() : 0);
  return problems > 0 ? 1 : 0;
}
