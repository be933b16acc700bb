// The lumeric command as users call it: options, where the result goes,
// messages on standard error and the exit status.
#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kCube = "#VRML V1.0 ascii\nCube { width 3 }\n";
const std::string kCubeOutputTail = "Cube {\n\twidth 3\n\theight 2\n\tdepth 2\n}\n\n";

bool contains(const std::string& text, const std::string& piece) { return text.find(piece) != std::string::npos; }

TEST(CommandLineOptions, ParseAndRefuse) {
  struct {
    std::vector<std::string> args;
    bool ok;
    std::string error;
  } cases[] = {
      {{"a.vlm"}, true, ""},
      {{"-o", "out.wrl", "a.vlm"}, true, ""},
      {{"--check", "--type", "VLM", "a.wrl"}, true, ""},
      {{"-W", "unknown", "-W", "duplicate", "-d", "dir/", "a.vlm"}, true, ""},
      {{}, false, "no INPUT given"},
      {{"a.vlm", "b.vlm"}, false, "only one INPUT may be given"},
      {{"-o"}, false, "option -o needs a value"},
      {{"-W", "loud", "a.vlm"}, false, "unknown warning \"loud\" (use unknown, duplicate, all or error)"},
      {{"-Wloud", "a.vlm"}, false, "unknown warning \"loud\" (use unknown, duplicate, all or error)"},
      {{"-W", "", "a.vlm"}, false, "option -W needs a value"},
      {{"-I"}, false, "option -I needs a value"},
      {{"-", "--stdin-name"}, false, "option --stdin-name needs a value"},
      {{"--stdin-name", "", "-"}, false, "--stdin-name NAME must not be empty"},
      {{"--stdin-name", "a.vlm", "b.vlm"}, false, "--stdin-name is used only with INPUT -"},
      {{"--frobnicate", "a.vlm"}, false, "unknown option --frobnicate"},
      {{"--type", "vlm", "a.vlm"}, false, "--type is used only with --check"},
      {{"--check", "-o", "x", "a.vlm"}, false, "-o cannot be combined with --check"},
      {{"--message-format", "gnu", "a.vlm"}, true, ""},
      {{"--message-format", "xml", "a.vlm"}, false, "unknown message format \"xml\" (use plain, gnu or json)"},
      {{"a.vlm", "--message-format"}, false, "option --message-format needs a value"},
  };
  for (const auto& c : cases) {
    std::vector<char*> argv{const_cast<char*>("lumeric")};
    for (const std::string& a : c.args) argv.push_back(const_cast<char*>(a.c_str()));
    CommandLine line;
    std::string error;
    EXPECT_EQ(parseCommandLine(static_cast<int>(argv.size()), argv.data(), line, error), c.ok) << c.args.size();
    EXPECT_EQ(error, c.error);
  }
}

TEST(CommandLineOptions, WarningAndIncludeOptionsTakeSeparateAndJoinedValues) {
  struct {
    std::vector<std::string> args;
    unsigned long warnings;
    bool asErrors;
    std::vector<std::string> includeDirectories;
  } cases[] = {
      {{"-W", "unknown"}, 2, false, {}},
      {{"-Wunknown", "-Wduplicate"}, 6, false, {}},
      {{"-W", "all"}, 6, false, {}},
      {{"-Wall"}, 6, false, {}},
      {{"-W", "error"}, 0, true, {}},
      {{"-Werror", "-Wduplicate"}, 4, true, {}},
      {{"-I", "parts", "-Ilib/", "-I", "more"}, 0, false, {"parts", "lib/", "more"}},
  };
  for (const auto& c : cases) {
    std::vector<std::string> args = c.args;
    args.push_back("a.vlm");
    std::vector<char*> argv{const_cast<char*>("lumeric")};
    for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    CommandLine line;
    std::string error;
    ASSERT_TRUE(parseCommandLine(static_cast<int>(argv.size()), argv.data(), line, error)) << args[0] << error;
    EXPECT_EQ(line.warnings, c.warnings) << args[0];
    EXPECT_EQ(line.warningsAreErrors, c.asErrors) << args[0];
    EXPECT_EQ(line.includeDirectories, c.includeDirectories) << args[0];
  }
}

TEST(CommandLineOptions, FileTypeComesFromTheExtension) {
  EXPECT_EQ(fileTypeOf("scene.vlm"), "vlm");
  EXPECT_EQ(fileTypeOf("SCENE.VLM"), "vlm");
  EXPECT_EQ(fileTypeOf("dir.vlm/scene"), "");
  EXPECT_EQ(fileTypeOf("scene.wrl"), "wrl");
  EXPECT_EQ(fileTypeOf("scene"), "");
  // Standard input takes its type from --stdin-name, and has none without.
  for (const auto& names : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--check", "-"}, ""}, {{"--check", "--stdin-name", "mk/a.VLM", "-"}, "vlm"}}) {
    std::vector<char*> argv{const_cast<char*>("lumeric")};
    for (const std::string& a : names.first) argv.push_back(const_cast<char*>(a.c_str()));
    CommandLine line;
    std::string error;
    ASSERT_TRUE(parseCommandLine(static_cast<int>(argv.size()), argv.data(), line, error)) << error;
    EXPECT_EQ(line.fileType, names.second);
  }
}

TEST(CommandLineRun, HelpVersionAndUsageErrors) {
  ScratchDir dir;
  CommandResult help = runLumeric({"--help"}, dir.path());
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(contains(help.out, "Usage: lumeric [options] INPUT"));
  EXPECT_TRUE(contains(help.out, "Examples:"));
  CommandResult version = runLumeric({"--version"}, dir.path());
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out.rfind("lumeric ", 0), 0u);
  CommandResult usage = runLumeric({"-W"}, dir.path());
  EXPECT_EQ(usage.status, 2);
  EXPECT_TRUE(contains(usage.err, "lumeric: option -W needs a value"));
}

TEST(CommandLineRun, DefaultOutputIsOutputWrlInTheCurrentDirectory) {
  ScratchDir dir;
  dir.write("cube.vlm", kCube);
  CommandResult run = runLumeric({"cube.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(dir.read("output.wrl"),
            "#VRML V1.0 ascii\n\n#Generated by VRMLLumeric from cube.vlm\n\n" + kCubeOutputTail);
}

TEST(CommandLineRun, OutputOptionWinsOverOutputTo) {
  ScratchDir dir;
  dir.write("scene.vlm", "#VRML V1.0 ascii\nGroup {\n\tOUTPUT_TO chosen.wrl\n\tCube { width 3 }\n}\n");
  CommandResult byScene = runLumeric({"scene.vlm"}, dir.path());
  EXPECT_EQ(byScene.status, 0);
  EXPECT_TRUE(dir.exists("chosen.wrl"));
  EXPECT_FALSE(dir.exists("output.wrl"));
  std::remove((dir.path() + "/chosen.wrl").c_str());

  CommandResult byOption = runLumeric({"-o", "mine.wrl", "scene.vlm"}, dir.path());
  EXPECT_EQ(byOption.status, 0);
  EXPECT_TRUE(contains(dir.read("mine.wrl"), "\tCube {\n\t\twidth 3\n"));
  EXPECT_FALSE(dir.exists("chosen.wrl"));

  CommandResult toStdout = runLumeric({"-o", "-", "scene.vlm"}, dir.path());
  EXPECT_TRUE(contains(toStdout.out, "#Generated by VRMLLumeric from scene.vlm"));
  EXPECT_FALSE(dir.exists("chosen.wrl"));
  EXPECT_FALSE(dir.exists("output.wrl"));
}

TEST(CommandLineRun, ErrorsGiveExitStatusOneAndWarningsZero) {
  ScratchDir dir;
  dir.write("bad.wrl", "#VRML V1.0 ascii\nGroup { Foo { } }\n");
  CommandResult bad = runLumeric({"-o", "-", "bad.wrl"}, dir.path());
  EXPECT_EQ(bad.status, 1);
  EXPECT_EQ(bad.err, "error: File \"bad.wrl\" Line 2: Unknown class \"Foo\"\n");

  dir.write("warn.wrl", "#VRML V1.0 ascii\nGroup { Foo { fields [ ] } DEF a Cube { } DEF a Cube { } }\n");
  CommandResult quiet = runLumeric({"-o", "-", "warn.wrl"}, dir.path());
  EXPECT_EQ(quiet.status, 0);
  EXPECT_EQ(quiet.err, "");
  CommandResult warned = runLumeric({"-W", "unknown", "-W", "duplicate", "-o", "-", "warn.wrl"}, dir.path());
  EXPECT_EQ(warned.status, 0);
  EXPECT_EQ(warned.err,
            "File \"warn.wrl\" Line 2: Warning: Unknown \"Foo\" node found\n"
            "File \"warn.wrl\" Line 2: Warning: Duplicate node name \"a\" found\n");
}

TEST(CommandLineRun, WarnErrorCountsWarningsButNotPrintOutput) {
  ScratchDir dir;
  dir.write("warn.vlm", "#VRML V1.0 ascii\nGroup {\n\tDEF a Cube { }\n\tDEF a Cube { }\n\tPRINT 1+1\n}\n");
  dir.write("print.vlm", "#VRML V1.0 ascii\nGroup {\n\tDEF a Cube { }\n\tPRINT 1+1\n}\n");
  const std::string warning = "File \"warn.vlm\" Line 4: Warning: Duplicate node name \"a\" found\n";
  struct {
    std::vector<std::string> options;
    const char* scene;
    int status;
    bool warns;
  } cases[] = {
      {{"-W", "duplicate"}, "warn.vlm", 0, true},
      {{"-W", "error"}, "warn.vlm", 0, false},
      {{"-W", "duplicate", "-W", "error"}, "warn.vlm", 1, true},
      {{"-Wduplicate", "-Werror"}, "warn.vlm", 1, true},
      {{"-Werror", "-Wall"}, "warn.vlm", 1, true},
      {{"-Wall", "-Werror"}, "print.vlm", 0, false},
  };
  for (const auto& c : cases) {
    std::vector<std::string> args = c.options;
    for (const char* a : {"-o", "-", c.scene}) args.push_back(a);
    CommandResult run = runLumeric(args, dir.path());
    SCOPED_TRACE(args[0] + " " + args[1] + " " + c.scene);
    EXPECT_EQ(run.status, c.status);
    EXPECT_EQ(contains(run.err, warning), c.warns) << run.err;
    EXPECT_FALSE(contains(run.err, "error:")) << "warnings stay warnings in the text";
  }
}

TEST(CommandLineRun, MissingInputAndDirectoryArgument) {
  ScratchDir dir;
  CommandResult missing = runLumeric({"nowhere.vlm"}, dir.path());
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.err, "error: Could not open nowhere.vlm for reading - Error # 2\n");
  EXPECT_FALSE(dir.exists("output.wrl"));

  dir.write("sub/placeholder", "");
  std::string sub = dir.path() + "/sub";
  std::system(("mkdir -p '" + sub + "'").c_str());
  writeFile(sub + "/cube.vlm", kCube);
  CommandResult found = runLumeric({"-d", "sub/", "-o", "-", "cube.vlm"}, dir.path());
  EXPECT_EQ(found.status, 0);
  EXPECT_TRUE(contains(found.out, "#Generated by VRMLLumeric from cube.vlm\n"));
}

TEST(CommandLineRun, CheckTakesTheLanguageFromTheExtensionOrType) {
  ScratchDir dir;
  std::string scene = "#VRML V1.0 ascii\nGroup {\n\tDECLARE x:y 3\n}\n";
  dir.write("scene.vlm", scene);
  dir.write("scene.wrl", scene);
  // The statement reports the line its value text's line end took it to.
  CommandResult extended = runLumeric({"--check", "scene.vlm"}, dir.path());
  EXPECT_EQ(extended.status, 1);
  EXPECT_EQ(extended.err, "error: File \"scene.vlm\" Line 4: Field x:y not found\n");
  CommandResult plain = runLumeric({"--check", "scene.wrl"}, dir.path());
  EXPECT_EQ(plain.status, 1);
  EXPECT_EQ(plain.err, "error: File \"scene.wrl\" Line 3: Expected '{'; got 'x'\n");
  CommandResult forced = runLumeric({"--check", "--type", "VLM", "scene.wrl"}, dir.path());
  EXPECT_EQ(forced.err, "error: File \"scene.wrl\" Line 4: Field x:y not found\n");
  EXPECT_FALSE(dir.exists("output.wrl"));
}

}  // namespace
}  // namespace lumeric
