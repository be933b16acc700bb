// The lumeric command: options in, one library call (a translation or an
// export), exit status out; with --watch, one call after every change.
#include <cerrno>
#include <chrono>
#include <ctime>
#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <cstring>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/Dependencies.h"
#include "cli/FileWatch.h"
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

// The summary line --watch prints after each run: the time of day, the
// nodes written, the errors and warnings, and how long the run took.
void printSummary(const lumeric::CommandLine& line, const lumeric::StderrView& view, long nodes, long long ms) {
  const std::time_t now = std::time(nullptr);
  char clock[16] = "";
  std::strftime(clock, sizeof clock, "%H:%M:%S", std::localtime(&now));
  const int errors = view.errorCount();
  const int warnings = view.warningCount();
  if (line.messageFormat == lumeric::MessageFormat::kJson) {
    std::fprintf(stderr, "{\"summary\":{\"time\":\"%s\",\"nodes\":%ld,\"errors\":%d,\"warnings\":%d,\"ms\":%lld}}\n",
                 clock, nodes, errors, warnings, ms);
  } else {
    std::fprintf(stderr, "lumeric: [%s] %ld node%s written, %d error%s, %d warning%s (%lld ms)\n", clock, nodes,
                 nodes == 1 ? "" : "s", errors, errors == 1 ? "" : "s", warnings, warnings == 1 ? "" : "s", ms);
  }
  std::fflush(stderr);
}

// One translation (or check, lint or export) as the command line asks.
// Returns the exit status; `additions` receives what the run read and
// wrote.
int runOnce(const lumeric::CommandLine& line, lumeric::StderrView& view, lumeric::RunAdditions& additions) {
  using namespace lumeric;
  theRun.limits = line.limits;
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
  view.finish();
  if (!additions.overrideError.empty()) {
    deps.abandon();
    return usageError(additions.overrideError);
  }
  if (deps.isOpen() &&
      !finishDependencies(deps, line, line.outputSet ? line.output : outputName, additions, view)) {
    return usageError("cannot write " + line.depsFile);
  }
  view.finish();
  const int problems = view.errorCount() + (line.warningsAreErrors ? view.warningCount() : 0);
  return problems > 0 ? 1 : 0;
}

// --watch: runs again after every change to a file the last run read, until
// SIGINT or SIGTERM; ends with the last run's status.  A usage error ends it
// only in the first run: later, an edit (a -D whose node is gone) may have
// caused it, and the next edit may mend it.
int watch(const lumeric::CommandLine& line, lumeric::StderrView& view) {
  using namespace lumeric;
  FileWatch files;
  std::string error;
  if (!files.usable(error)) return usageError(error);
  const int stop = catchStopSignals();
  if (stop < 0) return usageError(std::string("cannot catch signals: ") + std::strerror(errno));
  files.follow(openedInput(line));
  constexpr int kQuietMs = 100;
  int status = 0;
  bool first = true;
  do {
    view.resetCounts();
    RunAdditions additions;
    const auto start = std::chrono::steady_clock::now();
    status = runOnce(line, view, additions);
    const auto elapsed = std::chrono::steady_clock::now() - start;
    if (status == 2 && first) return status;
    first = false;
    printSummary(line, view, additions.nodesWritten,
                 std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
    std::vector<std::string> read = openedInput(line);
    read.insert(read.end(), additions.includedFiles.begin(), additions.includedFiles.end());
    files.follow(read);
  } while (!stopRequested() && files.wait(stop, kQuietMs) == FileWatch::kChanged);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace lumeric;
#ifdef __GLIBC__
  // A scene of millions of nodes is millions of small blocks.  Kept in the
  // allocator's fast lists when freed, they are all swept again at the next
  // large free; freed blocks merged at once cost a fifth less in all.
  mallopt(M_MXFAST, 0);
#endif
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
  StderrView view(line.messageFormat, stderr, line.hints);
  if (line.watch) return watch(line, view);
  RunAdditions additions;
  return runOnce(line, view, additions);
}
