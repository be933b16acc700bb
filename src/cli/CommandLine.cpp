#include "cli/CommandLine.h"

#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace lumeric {

const char kUsageText[] =
    "Usage: lumeric [options] INPUT\n"
    "\n"
    "Translates a scene written in extended VRML 1.0 (expressions, SET, APPEND,\n"
    "DECLARE, PRINT, PRECISION, OUTPUT_TO, INCLUDE, USE, LOOP, SELECT, PARAMETERS,\n"
    "Ball, Connect, Wall) into plain VRML 1.0 that any VRML 1.0 reader loads.\n"
    "\n"
    "By default the result goes to output.wrl in the current directory, or to the\n"
    "file the scene's OUTPUT_TO statement names.  INPUT \"-\" reads the scene from\n"
    "standard input.  No result replaces a file the run reads.\n"
    "\n"
    "Options:\n"
    "  -o FILE        write the result to FILE instead (\"-\" for standard output);\n"
    "                 this takes precedence over OUTPUT_TO.  FILE's extension\n"
    "                 chooses the format: .glb, .gltf, .stl, .obj or .x3d export\n"
    "                 the scene; any other writes VRML 1.0\n"
    "  --format FORMAT\n"
    "                 with -o: write FORMAT whatever FILE's extension: wrl, glb,\n"
    "                 gltf, stl, obj or x3d (needed with -o -)\n"
    "  --tessellation N\n"
    "                 in an export: N segments around spheres, cones and\n"
    "                 cylinders (3 to 1024), whatever Complexity says\n"
    "  --check        only read and expand the scene and report its errors; no\n"
    "                 result is written\n"
    "  --lint         translate the whole scene, evaluating every field, and\n"
    "                 report every message a translation gives; no result is\n"
    "                 written (editors run this)\n"
    "  --parameters   print the fields of the scene's DEF-named PARAMETERS nodes\n"
    "                 and their annotations as JSON; no result is written\n"
    "  --type TYPE    with --check: the file type; \"vlm\" (any case) enables the\n"
    "                 extended language, anything else reads plain VRML 1.0.\n"
    "                 Default: taken from INPUT's extension, or --stdin-name's\n"
    "                 (.vlm is extended)\n"
    "  -W unknown     warn about nodes of unknown class that declare their fields\n"
    "  -W duplicate   warn about DEF names that are defined twice\n"
    "  -W all         enable every warning\n"
    "  -W error       count warnings as errors for the exit status; the joined\n"
    "                 forms -Wunknown, -Wduplicate, -Wall and -Werror work too\n"
    "  -d DIR         when INPUT cannot be opened, try DIR followed by INPUT\n"
    "  -I DIR         look in DIR for an INCLUDE file found neither as written\n"
    "                 nor beside the including file; may be repeated, searched\n"
    "                 in order\n"
    "  --stdin-name NAME\n"
    "                 with INPUT \"-\": the name messages and --deps give the\n"
    "                 scene, beside which INCLUDE looks (default: <stdin>)\n"
    "  -D NAME:FIELD=VALUE\n"
    "                 after reading the scene, give FIELD of the node named NAME\n"
    "                 (the last one DEF gave that name) the value text VALUE, as\n"
    "                 if the file had it there; an expression is allowed.  May be\n"
    "                 repeated; applied in order before the scene is evaluated\n"
    "  --deps FILE    also write FILE, a make rule naming the output file, the\n"
    "                 input and every file INCLUDE read, as opened (not with\n"
    "                 --check or -o -)\n"
    "  --message-format FORMAT\n"
    "                 how messages are printed: plain (the default), gnu or json\n"
    "  --max-evaluations N\n"
    "                 evaluate at most N field references made from inside other\n"
    "                 evaluations (default 10000000), where a result of many\n"
    "                 numbers counts one for every 16 of them; further references\n"
    "                 read as 0\n"
    "  --max-nodes N  make at most N nodes by copying (LOOP, SELECT, USE; default\n"
    "                 10000000); the copies made so far are written\n"
    "  --max-memory SIZE\n"
    "                 keep copied and computed values (list elements, expression\n"
    "                 texts, evaluation results, 256 bytes for each copied node)\n"
    "                 within SIZE bytes, or with a suffix K, M or G (default\n"
    "                 1536M); past it no further copies, references or large\n"
    "                 results are made\n"
    "  --watch        after the first run, wait for a change to INPUT or to any\n"
    "                 file the run read (INCLUDE, WWWInline, textures) and run\n"
    "                 again, until Ctrl-C; one summary line per run\n"
    "  --hints        with --message-format plain: add the notes gnu and json\n"
    "                 print (near names, repeated messages folded)\n"
    "  --confine      let INCLUDE read and OUTPUT_TO write only regular files in\n"
    "                 INPUT's directory and below it (for scenes from untrusted\n"
    "                 sources)\n"
    "  -h, --help     show this text\n"
    "  --version      show the version\n"
    "\n"
    "Messages go to standard error, one per line.  The library puts the position\n"
    "in front of each: File \"NAME\" Line N: for what was read from a file,\n"
    "Line N: alone for a copy made by LOOP, SELECT or USE (it has no file).\n"
    "The message formats:\n"
    "  plain  errors as \"error: \" and the message, warnings and PRINT output\n"
    "         as the message alone\n"
    "  gnu    the form editors and build tools jump from:\n"
    "           FILE:LINE: error: TEXT\n"
    "           FILE:LINE: warning: TEXT   (the \"Warning: \" becomes the severity)\n"
    "           FILE:LINE: note: TEXT      (PRINT output)\n"
    "           FILE: error: TEXT          (about a whole file)\n"
    "           lumeric: error: TEXT       (no position)\n"
    "         a copy's message names the file of the node copied\n"
    "  json   one object per line:\n"
    "           {\"file\":\"FILE\",\"line\":N,\"severity\":\"error\",\"message\":\"TEXT\"}\n"
    "         severity error, warning or note; file and line null when unknown\n"
    "gnu and json (and plain with --hints) follow a message that refuses a name\n"
    "with a note naming the near names (\"did you mean ...?\"), and print the\n"
    "identical messages of a LOOP's repetitions once with \"note: repeated N\n"
    "times\" (json: each, the first with \"repeat\":N).\n"
    "\n"
    "An export (glTF 2.0, STL, OBJ, X3D) shows exactly the scene the VRML 1.0\n"
    "result describes.  .gltf embeds its data; .obj writes NAME.mtl and its\n"
    "textures beside it (not with -o -); .stl leaves out lines and points.\n"
    "\n"
    "Exit status: 0 when no error was reported, 1 when at least one was (or, with\n"
    "-W error, a warning), 2 for a usage error (a -D that names no node or field,\n"
    "a --deps FILE that cannot be written).  A result (-o, --deps, OUTPUT_TO or\n"
    "output.wrl) that would replace a file the run reads is refused with an\n"
    "error and the file is left as it was.\n"
    "\n"
    "Examples:\n"
    "  lumeric -o scene.wrl examples/expressions.vlm\n"
    "  lumeric -o molecule.glb examples/molecule.vlm\n"
    "  lumeric --format stl --tessellation 64 -o - examples/molecule.vlm > m.stl\n"
    "  lumeric --check --message-format gnu examples/expressions.vlm\n"
    "  lumeric --watch --hints -o molecule.glb examples/molecule.vlm\n"
    "  lumeric -D Params:size=2.5 --deps scene.d -o scene.wrl scene.vlm\n"
    "  lumeric --check --stdin-name mk/scene.vlm -I parts - < mk/scene.vlm\n"
    "The examples are installed in share/doc/lumeric/examples below the prefix.\n";

std::string fileTypeOf(const std::string& input) {
  size_t slash = input.find_last_of('/');
  size_t dot = input.find_last_of('.');
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return "";
  std::string extension = input.substr(dot + 1);
  std::string lower;
  for (char c : extension) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower == "vlm" ? "vlm" : extension;
}

namespace {

bool takeValue(int argc, char** argv, int& i, std::string& value, std::string& error) {
  if (i + 1 >= argc) {
    error = std::string("option ") + argv[i] + " needs a value";
    return false;
  }
  value = argv[++i];
  return true;
}

// A count option: a whole number from 1 up.
bool takeCount(int argc, char** argv, int& i, long& count, std::string& error) {
  std::string value;
  if (!takeValue(argc, argv, i, value, error)) return false;
  char* end = nullptr;
  errno = 0;
  count = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || errno != 0 || count < 1) {
    error = std::string("option ") + argv[i - 1] + " needs a whole number from 1 up, not \"" + value + "\"";
    return false;
  }
  return true;
}

// --max-memory's value: bytes, or with a suffix K, M or G (powers of 1024).
bool takeSize(int argc, char** argv, int& i, long long& bytes, std::string& error) {
  std::string value;
  if (!takeValue(argc, argv, i, value, error)) return false;
  char* end = nullptr;
  errno = 0;
  bytes = std::strtoll(value.c_str(), &end, 10);
  const char suffix = static_cast<char>(std::toupper(static_cast<unsigned char>(*end)));
  const int shift = suffix == '\0' ? 0 : suffix == 'K' ? 10 : suffix == 'M' ? 20 : suffix == 'G' ? 30 : -1;
  const bool whole = end != value.c_str() && (suffix == '\0' || end[1] == '\0');
  if (!whole || shift < 0 || errno != 0 || bytes < 1 || bytes > (LLONG_MAX >> shift)) {
    error = "option --max-memory needs a size in bytes, or with a suffix K, M or G, not \"" + value + "\"";
    return false;
  }
  bytes <<= shift;
  return true;
}

// --tessellation's value: a whole number from 3 to 1024.
bool takeTessellation(int argc, char** argv, int& i, int& segments, std::string& error) {
  std::string value;
  if (!takeValue(argc, argv, i, value, error)) return false;
  char* end = nullptr;
  errno = 0;
  const long count = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || errno != 0 || count < 3 || count > 1024) {
    error = "option --tessellation needs a whole number from 3 to 1024, not \"" + value + "\"";
    return false;
  }
  segments = static_cast<int>(count);
  return true;
}

// Takes one -W argument: a warning to enable, "all" or "error".
bool takeWarning(const std::string& which, CommandLine& line, std::string& error) {
  if (which == "unknown") {
    line.warnings |= kWarnUnknownNodes;
  } else if (which == "duplicate") {
    line.warnings |= kWarnDuplicateNames;
  } else if (which == "all") {
    line.warnings |= kWarnUnknownNodes | kWarnDuplicateNames;
  } else if (which == "error") {
    line.warningsAreErrors = true;
  } else {
    error = "unknown warning \"" + which + "\" (use unknown, duplicate, all or error)";
    return false;
  }
  return true;
}

// An option that takes a value either as the next argument or joined to
// it, as compilers take -W and -I: "-Wall", "-Iparts".
bool takeJoinable(int argc, char** argv, int& i, const char* option, std::string& value, std::string& error) {
  const std::string arg = argv[i];
  if (arg.size() > 2) {
    value = arg.substr(2);
    return true;
  }
  if (!takeValue(argc, argv, i, value, error)) return false;
  if (value.empty()) {
    error = std::string("option ") + option + " needs a value";
    return false;
  }
  return true;
}

}  // namespace

std::string CommandLine::inputName() const {
  if (!readsStandardInput()) return input;
  return stdinName.empty() ? "<stdin>" : stdinName;
}

bool parseFieldOverride(const std::string& text, FieldOverride& change) {
  size_t colon = text.find(':');
  size_t equals = text.find('=', colon == std::string::npos ? 0 : colon);
  if (colon == std::string::npos || equals == std::string::npos) return false;
  change.node = text.substr(0, colon);
  change.field = text.substr(colon + 1, equals - colon - 1);
  change.value = text.substr(equals + 1);
  return !change.node.empty() && !change.field.empty() && !change.value.empty();
}

bool parseCommandLine(int argc, char** argv, CommandLine& line, std::string& error) {
  bool typeSet = false;
  bool formatSet = false;
  bool noMoreOptions = false;
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    if (!noMoreOptions && arg.size() > 1 && arg[0] == '-') {
      if (arg == "--") {
        noMoreOptions = true;
      } else if (arg == "--help" || arg == "-h") {
        line.action = CommandLine::kHelp;
        return true;
      } else if (arg == "--version") {
        line.action = CommandLine::kVersion;
        return true;
      } else if (arg == "--check") {
        line.action = CommandLine::kCheck;
      } else if (arg == "--lint") {
        line.action = CommandLine::kLint;
      } else if (arg == "--parameters") {
        line.action = CommandLine::kParameters;
      } else if (arg == "-o") {
        if (!takeValue(argc, argv, i, line.output, error)) return false;
        line.outputSet = true;
      } else if (arg == "--format") {
        std::string name;
        if (!takeValue(argc, argv, i, name, error)) return false;
        if (!exportFormatByName(name, line.format)) {
          error = "unknown format \"" + name + "\" (use wrl, glb, gltf, stl, obj or x3d)";
          return false;
        }
        formatSet = true;
      } else if (arg == "--tessellation") {
        if (!takeTessellation(argc, argv, i, line.tessellation, error)) return false;
      } else if (arg == "--type") {
        if (!takeValue(argc, argv, i, line.fileType, error)) return false;
        typeSet = true;
      } else if (arg == "-d") {
        if (!takeValue(argc, argv, i, line.directory, error)) return false;
      } else if (arg.compare(0, 2, "-D") == 0) {
        std::string text = arg.substr(2);
        if (arg == "-D" && !takeValue(argc, argv, i, text, error)) return false;
        FieldOverride change;
        if (!parseFieldOverride(text, change)) {
          error = "malformed -D \"" + text + "\" (use -D NAME:FIELD=VALUE)";
          return false;
        }
        line.overrides.push_back(change);
      } else if (arg == "--deps") {
        if (!takeValue(argc, argv, i, line.depsFile, error)) return false;
        if (line.depsFile.empty()) {
          error = "--deps FILE must not be empty";
          return false;
        }
      } else if (arg == "--message-format") {
        std::string name;
        if (!takeValue(argc, argv, i, name, error)) return false;
        if (!parseMessageFormat(name, line.messageFormat)) {
          error = "unknown message format \"" + name + "\" (use plain, gnu or json)";
          return false;
        }
      } else if (arg == "--max-evaluations") {
        if (!takeCount(argc, argv, i, line.limits.maxEvaluations, error)) return false;
      } else if (arg == "--max-nodes") {
        if (!takeCount(argc, argv, i, line.limits.maxNodes, error)) return false;
      } else if (arg == "--max-memory") {
        if (!takeSize(argc, argv, i, line.limits.maxMemory, error)) return false;
      } else if (arg == "--confine") {
        line.limits.confine = true;
      } else if (arg == "--watch" || arg == "--hints") {
        (arg == "--watch" ? line.watch : line.hints) = true;
      } else if (arg.compare(0, 2, "-W") == 0) {
        std::string which;
        if (!takeJoinable(argc, argv, i, "-W", which, error) || !takeWarning(which, line, error)) return false;
      } else if (arg.compare(0, 2, "-I") == 0) {
        std::string directory;
        if (!takeJoinable(argc, argv, i, "-I", directory, error)) return false;
        line.includeDirectories.push_back(directory);
      } else if (arg == "--stdin-name") {
        if (!takeValue(argc, argv, i, line.stdinName, error)) return false;
        if (line.stdinName.empty()) {
          error = "--stdin-name NAME must not be empty";
          return false;
        }
      } else {
        error = "unknown option " + arg;
        return false;
      }
      continue;
    }
    if (!line.input.empty()) {
      error = "only one INPUT may be given";
      return false;
    }
    line.input = arg;
    if (line.input.empty()) {
      error = "INPUT must not be empty";
      return false;
    }
  }
  if (line.input.empty()) {
    error = "no INPUT given";
    return false;
  }
  if (typeSet && line.action != CommandLine::kCheck) {
    error = "--type is used only with --check";
    return false;
  }
  const std::string mode = line.action == CommandLine::kLint         ? "--lint"
                           : line.action == CommandLine::kParameters ? "--parameters"
                                                                     : "--check";
  if (line.outputSet && line.writesNothing()) {
    error = "-o cannot be combined with " + mode;
    return false;
  }
  if (!line.depsFile.empty() && line.writesNothing()) {
    error = "--deps cannot be combined with " + mode;
    return false;
  }
  if (!line.depsFile.empty() && line.outputSet && line.output == "-") {
    error = "--deps needs an output file; it cannot be combined with -o -";
    return false;
  }
  if (!line.stdinName.empty() && !line.readsStandardInput()) {
    error = "--stdin-name is used only with INPUT -";
    return false;
  }
  if (formatSet && line.writesNothing()) {
    error = "--format cannot be combined with " + mode;
    return false;
  }
  if (formatSet && !line.outputSet) {
    error = "--format needs -o FILE";
    return false;
  }
  // Without --format an export format comes from -o's extension; any
  // other extension keeps VRML 1.0.
  if (!formatSet && line.outputSet && line.output != "-" && !exportFormatOfPath(line.output, line.format)) {
    line.format = ExportFormat::kWrl;
  }
  if (line.watch && line.readsStandardInput()) {
    error = "--watch needs an INPUT file, not -";
    return false;
  }
  if (!typeSet) line.fileType = fileTypeOf(line.inputName());
  return true;
}

}  // namespace lumeric
