// The hints after messages that refuse a name: one note naming the near
// names, for each kind of name; none when no name is near, and none in
// plain without --hints.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/NameHints.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

std::string scene(const std::string& body) { return "#VRML V1.0 ascii\nSeparator {\n" + body + "}\n"; }

struct HintCase {
  const char* kind;
  const char* body;  // the Separator's children, from line 3 on
  const char* message;
  const char* note;  // "" when no note may follow
  int line = 3;      // where the message is placed
};

const HintCase kHintCases[] = {
    {"field", "\tCube { heigth 2 }\n", "Unknown field \"heigth\"", "did you mean \"height\"?"},
    {"field in scope", "\tCylinder { radius =hieght+1 height 3 }\n", "Field hieght not found",
     "did you mean \"height\"?"},
    // Values are evaluated once the whole scene is read: P is known.
    {"field of a named node", "\tSphere { radius =P:widht }\n\tDEF P Cube { width 2 }\n",
     "Field P:widht not found", "did you mean \"width\"?"},
    {"field of no node", "\tSphere { radius =Q:width }\n", "Field Q:width not found", ""},
    {"function", "\tMaterial { diffuseColor =Colour(\"red\") }\n", "Function Colour(...) not found",
     "did you mean \"Color\"?"},
    {"class", "\tMaterail { }\n", "Unknown class \"Materail\"", "did you mean \"Material\"?"},
    {"colour", "\tMaterial { diffuseColor =Color(\"Yelow\") }\n", "Color Yelow not found",
     "did you mean \"Yellow\"?"},
    {"field in another case", "\tSphere { Radius 2 }\n", "Expected '}'; got 'R'", "did you mean \"radius\"?"},
    // SET reads its line to the end: its message is placed after it.
    {"field SET names", "\tDEF P Cube { width 2 }\n\tSET P:widht 3\n", "Field P:widht not found",
     "did you mean \"width\"?", 5},
    {"far field", "\tCube { colour 2 }\n", "Unknown field \"colour\"", ""},
    {"far function", "\tCube { width =Frobnicate(1) }\n", "Function Frobnicate(...) not found", ""},
    {"brace before a number", "\tSphere { 2 }\n", "Expected '}'; got '2'", ""},
};

class Hints : public testing::TestWithParam<HintCase> {};

TEST_P(Hints, FollowTheMessage) {
  const HintCase& c = GetParam();
  ScratchDir dir;
  dir.write("scene.vlm", scene(c.body));
  const std::string at = "scene.vlm:" + std::to_string(c.line) + ": ";
  const std::string note = std::string(c.note).empty() ? "" : at + "note: " + c.note + "\n";
  const CommandResult gnu = runLumeric({"--lint", "--message-format", "gnu", "scene.vlm"}, dir.path());
  EXPECT_EQ(gnu.status, 1);
  EXPECT_EQ(gnu.err, at + "error: " + c.message + "\n" + note);
}

INSTANTIATE_TEST_SUITE_P(EachKind, Hints, testing::ValuesIn(kHintCases),
                         [](const testing::TestParamInfo<HintCase>& test) { return testIdFromFileName(test.param.kind); });

// The same note in the other formats; plain shows it only with --hints.
TEST(HintFormats, NoteInEachFormat) {
  ScratchDir dir;
  dir.write("scene.vlm", scene("\tCube { heigth 2 }\n"));
  const std::string message = "Unknown field \\\"heigth\\\"";
  const std::string note = "did you mean \\\"height\\\"?";
  struct {
    std::vector<std::string> options;
    std::string err;
  } cases[] = {
      {{"--message-format", "json"},
       "{\"file\":\"scene.vlm\",\"line\":3,\"severity\":\"error\",\"message\":\"" + message + "\"}\n"
       "{\"file\":\"scene.vlm\",\"line\":3,\"severity\":\"note\",\"message\":\"" + note + "\"}\n"},
      {{}, "error: File \"scene.vlm\" Line 3: Unknown field \"heigth\"\n"},
      {{"--hints"}, "error: File \"scene.vlm\" Line 3: Unknown field \"heigth\"\nnote: did you mean \"height\"?\n"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> arguments = c.options;
    arguments.insert(arguments.end(), {"--lint", "scene.vlm"});
    const CommandResult run = runLumeric(arguments, dir.path());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, c.err);
  }
}

// The choice of near names, on lists given directly.
class Listed : public NameCandidates {
 public:
  Listed(Kind kind, const char* word, std::vector<std::string> names) : NameCandidates(kind, word), names_(names) {}
  void collect(std::vector<std::string>& names) const override { names.insert(names.end(), names_.begin(), names_.end()); }

 private:
  std::vector<std::string> names_;
};

TEST(NearNames, NearestFirstAtMostThreeEachOnce) {
  struct {
    NameCandidates::Kind kind;
    const char* word;
    std::vector<std::string> names;
    std::vector<std::string> near;
  } cases[] = {
      // A swap of neighbours is one edit; case does not count.
      {NameCandidates::kField, "Width", {"width", "height"}, {"width"}},
      // Nearest first, then in the order offered; three at most; once each.
      {NameCandidates::kFieldInScope, "ab", {"abcd", "abc", "xb", "ab_", "abc", "b"}, {"abc", "xb", "ab_"}},
      // Three edits are too many.
      {NameCandidates::kClass, "Cubicle", {"Cube"}, {}},
      // Functions and colours match in any case already: the same name in
      // another case was refused for its arguments, not its name.
      {NameCandidates::kFunction, "color", {"Color", "Colour2"}, {"Colour2"}},
      {NameCandidates::kColour, "grey", {"Grey", "Gray"}, {"Gray"}},
      // The closing brace's hint takes a case difference alone.
      {NameCandidates::kFieldCase, "Radius", {"radius", "radii"}, {"radius"}},
      {NameCandidates::kFieldCase, "Radus", {"radius"}, {}},
      {NameCandidates::kField, "", {"a"}, {}},
  };
  for (const auto& c : cases) {
    const Listed listed(c.kind, c.word, c.names);
    EXPECT_EQ(nearNames(listed), c.near) << c.word;
  }
}

TEST(NearNames, HintTextNamesEachName) {
  EXPECT_EQ(hintText({}), "");
  EXPECT_EQ(hintText({"a"}), "did you mean \"a\"?");
  EXPECT_EQ(hintText({"a", "b"}), "did you mean \"a\" or \"b\"?");
  EXPECT_EQ(hintText({"a", "b", "c"}), "did you mean \"a\", \"b\" or \"c\"?");
}

}  // namespace
}  // namespace lumeric
