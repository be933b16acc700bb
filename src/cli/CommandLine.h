// The options of the lumeric command.
#ifndef LUMERIC_CLI_COMMANDLINE_H
#define LUMERIC_CLI_COMMANDLINE_H

#include <string>
#include <vector>

#include "cli/MessageFormat.h"
#include "driver/FieldOverrides.h"
#include "core/RunState.h"
#include "export/ExportFormat.h"

namespace lumeric {

struct CommandLine {
  enum Action { kTranslate, kCheck, kLint, kParameters, kHelp, kVersion };

  Action action = kTranslate;
  std::string input;      // "-": standard input
  std::string stdinName;  // --stdin-name; empty: none given
  std::string output;     // -o; empty: the library's own choice
  bool outputSet = false;
  std::string fileType;   // --type; empty: from the input's extension
  std::string directory;  // -d
  unsigned long warnings = 0;     // -W unknown, duplicate, all: gWarn's bits
  bool warningsAreErrors = false;  // -W error
  std::vector<std::string> includeDirectories;  // -I, in order
  MessageFormat messageFormat = MessageFormat::kPlain;  // --message-format
  std::vector<FieldOverride> overrides;  // -D, in order
  std::string depsFile;                  // --deps; empty: none
  RunLimits limits;  // --max-evaluations, --max-nodes, --confine
  // What is written: VRML 1.0 (kWrl) unless --format or the extension of
  // -o names an export format.
  ExportFormat format = ExportFormat::kWrl;
  int tessellation = 0;  // --tessellation; 0: as Complexity says
  bool watch = false;    // --watch: run again whenever a file read changes
  bool hints = false;    // --hints: plain messages get hints and folding too

  bool readsStandardInput() const { return input == "-"; }
  // --check, --lint and --parameters write no translation.
  bool writesNothing() const { return action == kCheck || action == kLint || action == kParameters; }
  // The name the input goes by in messages, --deps and for INCLUDE: the
  // path given, or for standard input --stdin-name or "<stdin>".
  std::string inputName() const;
};

// Parses argv.  On a usage error returns false with `error` set.
bool parseCommandLine(int argc, char** argv, CommandLine& line, std::string& error);

// Takes "NAME:FIELD=VALUE" apart; false when a part is missing or empty.
bool parseFieldOverride(const std::string& text, FieldOverride& change);

// The file type CheckSyntax gets for `input`: "vlm" for a ".vlm" extension
// in any case, else the extension itself (empty when there is none).
std::string fileTypeOf(const std::string& input);

extern const char kUsageText[];

}  // namespace lumeric

#endif  // LUMERIC_CLI_COMMANDLINE_H
