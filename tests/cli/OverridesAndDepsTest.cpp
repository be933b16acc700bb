// The command's -D (a field value from the command line) and --deps (a make
// rule of the files a translation read).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/Dependencies.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

// The translated text after the two header lines.
std::string body(const std::string& output) {
  size_t at = output.find("\n\n", output.find("#Generated"));
  return at == std::string::npos ? output : output.substr(at + 2);
}

const std::string kParametric =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "\tDEF Params PARAMETERS {\n"
    "\t\tfields [ SFFloat size, SFVec3f offset ]\n"
    "\t\tsize 1 offset =(1,1,1)\n"
    "\t\tTranslation { translation =offset }\n"
    "\t\tSphere { radius size }\n"
    "\t}\n"
    "\tDEF Ball Sphere { radius 1 }\n"
    "\tDEF Ball Sphere { radius 2 }\n"
    "}\n";

// The node name ends at the first colon and the field at the first equals
// sign; the rest is the value.
TEST(FieldOverrideOption, SplitsAtTheFirstColonAndEqualsSign) {
  FieldOverride change;
  ASSERT_TRUE(parseFieldOverride("Ball~`2`:radius=a:b=c", change));
  EXPECT_EQ(change.node, "Ball~`2`");
  EXPECT_EQ(change.field, "radius");
  EXPECT_EQ(change.value, "a:b=c");
}

TEST(FieldOverrideOption, ValuesReplaceWhatTheFileGave) {
  ScratchDir dir;
  dir.write("scene.vlm", kParametric);
  // An expression, a whole-field expression in place of another, plain
  // numbers in place of an expression, and the last of two nodes named Ball.
  CommandResult changed = runLumeric({"-D", "Params:size=2*1.5", "-D", "Params:offset==(1,2,3)*2", "-DBall:radius=7",
                                      "-o", "-", "scene.vlm"},
                                     dir.path());
  ASSERT_EQ(changed.status, 0) << changed.err;
  EXPECT_EQ(body(changed.out),
            "Separator {\n\trenderCulling AUTO\n\n"
            "\tTranslation {\n\t\ttranslation 2 4 6\n\t}\n\n"
            "\tSphere {\n\t\tradius 3\n\t}\n\n"
            "\tDEF Ball Sphere {\n\t\tradius 1\n\t}\n\n"
            "\tDEF Ball Sphere {\n\t\tradius 7\n\t}\n\n}\n\n");
  CommandResult numbers = runLumeric({"-D", "Params:offset=0 -1 0.5", "-o", "-", "scene.vlm"}, dir.path());
  ASSERT_EQ(numbers.status, 0) << numbers.err;
  EXPECT_TRUE(contains(numbers.out, "translation 0 -1 0.5\n"));
  // A later value for the same field wins.
  CommandResult twice = runLumeric({"-D", "Params:size=4", "-D", "Params:size=5", "-o", "-", "scene.vlm"}, dir.path());
  EXPECT_TRUE(contains(twice.out, "radius 5\n"));
  // --check runs the statements with the values too.
  dir.write("print.vlm", "#VRML V1.0 ascii\nDEF P PARAMETERS {\n\tfields [ SFFloat size ] size 1\n\tPRINT size\n}\n");
  CommandResult check = runLumeric({"--check", "-D", "P:size=4", "print.vlm"}, dir.path());
  EXPECT_EQ(check.status, 0);
  EXPECT_EQ(check.err, "File \"print.vlm\" Line 4: size is 4\n");
  // Messages about the value name the line of the node it was given to.
  CommandResult wrong = runLumeric({"-D", "Params:size=missing*2", "-o", "-", "scene.vlm"}, dir.path());
  ASSERT_EQ(wrong.status, 1);
  EXPECT_EQ(wrong.err,
            "error: File \"scene.vlm\" Line 3: Field missing not found\n"
            "error: File \"scene.vlm\" Line 7: size is not defined\n");
}

TEST(FieldOverrideOption, UnknownNodeFieldOrValueIsAUsageError) {
  ScratchDir dir;
  dir.write("scene.vlm", kParametric);
  struct {
    std::string arg;
    std::string message;
  } cases[] = {
      {"Nobody:size=2", "lumeric: -D Nobody:size=2: no node is named \"Nobody\"\n"},
      {"Params:colour=2", "lumeric: -D Params:colour=2: the node \"Params\" has no field \"colour\"\n"},
      {"Ball:Radius=2", "lumeric: -D Ball:Radius=2: the node \"Ball\" has no field \"Radius\"\n"},
      {"Params:size=2 3", "lumeric: -D Params:size=2 3: not one value of the field's type SFFloat\n"},
      {"Params:offset=1 2", "lumeric: -D Params:offset=1 2: not one value of the field's type SFVec3f\n"},
  };
  for (const auto& c : cases) {
    CommandResult run = runLumeric({"-D", c.arg, "-o", "out.wrl", "scene.vlm"}, dir.path());
    ASSERT_EQ(run.status, 2) << c.arg;
    EXPECT_EQ(run.err, c.message + "Try 'lumeric --help' for more information.\n");
    EXPECT_FALSE(dir.exists("out.wrl")) << "nothing is written after a bad -D";
  }
}

TEST(DependencyFile, EscapesNamesForMake) {
  struct {
    std::string name, escaped;
  } cases[] = {
      {"scene.vlm", "scene.vlm"},
      {"my scene.vlm", "my\\ scene.vlm"},
      {"a\tb", "a\\\tb"},
      {"a#b", "a\\#b"},
      {"c:x", "c\\:x"},
      {"cost$.wrl", "cost$$.wrl"},
      {"end\\ x", "end\\\\\\ x"},
      {"back\\slash", "back\\slash"},
  };
  for (const auto& c : cases) EXPECT_EQ(escapeForMake(c.name), c.escaped) << c.name;
  EXPECT_EQ(dependencyRule("out.wrl", {"in.vlm", "a.wrl", "in.vlm", "a.wrl", "b c.wrl"}),
            "out.wrl: in.vlm a.wrl b\\ c.wrl\n\na.wrl:\n\nb\\ c.wrl:\n");
  EXPECT_EQ(dependencyRule("out.wrl", {"in.vlm"}), "out.wrl: in.vlm\n");
}

TEST(DependencyFile, NamesTheOutputTheInputAndEveryIncludedFile) {
  ScratchDir dir;
  dir.write("part.wrl", "#VRML V1.0 ascii\nCube { }\n");
  ASSERT_EQ(std::system(("mkdir '" + dir.path() + "/my parts'").c_str()), 0);
  dir.write("my parts/wheel.wrl", "#VRML V1.0 ascii\nGroup { INCLUDE part.wrl }\n");
  dir.write("scene.vlm",
            "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE my\\ parts/wheel.wrl\n\tINCLUDE part.wrl\n\tINCLUDE gone.wrl\n}\n");
  CommandResult run = runLumeric({"--deps", "scene.d", "-o", "scene.wrl", "scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 1) << "the missing include is an error of the scene";
  EXPECT_TRUE(contains(run.err, "Cannot open INCLUDE file gone.wrl"));
  EXPECT_EQ(dir.read("scene.d"),
            "scene.wrl: scene.vlm my\\ parts/wheel.wrl part.wrl\n\nmy\\ parts/wheel.wrl:\n\npart.wrl:\n");

  // Without -o the target is the file the translation wrote.
  dir.write("named.vlm", "#VRML V1.0 ascii\nGroup { OUTPUT_TO chosen.wrl Cube { } }\n");
  CommandResult named = runLumeric({"--deps", "named.d", "named.vlm"}, dir.path());
  ASSERT_EQ(named.status, 0) << named.err;
  EXPECT_EQ(dir.read("named.d"), "chosen.wrl: named.vlm\n");
  CommandResult plain = runLumeric({"--deps", "plain.d", "part.wrl"}, dir.path());
  ASSERT_EQ(plain.status, 0) << plain.err;
  EXPECT_EQ(dir.read("plain.d"), "output.wrl: part.wrl\n");
}

TEST(DependencyFile, UnwritableFileIsAUsageErrorBeforeTranslating) {
  ScratchDir dir;
  dir.write("scene.vlm", "#VRML V1.0 ascii\nCube { }\n");
  CommandResult run = runLumeric({"--deps", "no/such/dir/scene.d", "-o", "scene.wrl", "scene.vlm"}, dir.path());
  ASSERT_EQ(run.status, 2);
  EXPECT_EQ(run.err,
            "lumeric: cannot write no/such/dir/scene.d: No such file or directory\n"
            "Try 'lumeric --help' for more information.\n");
  EXPECT_FALSE(dir.exists("scene.wrl"));

  // A bad -D leaves no dependency file behind.
  CommandResult bad = runLumeric({"--deps", "scene.d", "-D", "X:y=1", "-o", "scene.wrl", "scene.vlm"}, dir.path());
  ASSERT_EQ(bad.status, 2);
  EXPECT_FALSE(dir.exists("scene.d"));
  EXPECT_FALSE(dir.exists("scene.wrl"));
}

}  // namespace
}  // namespace lumeric
