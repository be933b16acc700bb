// --parameters: the fields of DEF-named PARAMETERS nodes as JSON, with the
// captions, ranges and choices their comments give, exactly as printed.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const char kScene[] =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "\tDEF Shape PARAMETERS {\n"
    "\t\tfields [ SFFloat size, SFLong count, SFBool solid, SFColor tint, SFVec3f offset,\n"
    "\t\t\tSFString label, SFFloat kind, MFFloat list, SFFloat twice ]\n"
    "\t\t# Edge of each cube\n"
    "\t\tsize 2 # [0.5:0.5:10]\n"
    "\t\tcount 3 # [20]\n"
    "\t\tsolid TRUE\n"
    "\t\ttint 1 0.5 0 # not an annotation\n"
    "\t\toffset 0 0 -1.5\n"
    "\t\tlabel \"row\" # [\"row\", \"ring\"]\n"
    "\t\tkind 20 # [10:S, 20:M]\n"
    "\t\tlist [ 1, 2 ]\n"
    "\t\ttwice =size*2\n"
    "\t\tCube { width size }\n"
    "\t}\n"
    "\tPARAMETERS { fields [ SFFloat hidden ] hidden 1 }\n"
    "\tDEF Inline PARAMETERS { fields [ SFFloat a, SFFloat b ] a 1 b 2 # [0:9]\n"
    "\t}\n"
    "}\n";

// The listing with the layout of the JSON writer taken out: one line for
// each parameter.
const char kExpected[] =
    R"({"parameters":[)"
    R"({"name":"Shape:size","caption":"Edge of each cube","group":"Shape","type":"number","initial":2,)"
    R"("min":0.5,"max":10,"step":0.5},)"
    R"({"name":"Shape:count","caption":"","group":"Shape","type":"integer","initial":3,"min":0,"max":20},)"
    R"({"name":"Shape:solid","caption":"","group":"Shape","type":"boolean","initial":true},)"
    R"({"name":"Shape:tint","caption":"","group":"Shape","type":"color","initial":[1,0.5,0]},)"
    R"({"name":"Shape:offset","caption":"","group":"Shape","type":"vector","initial":[0,0,-1.5]},)"
    R"({"name":"Shape:label","caption":"","group":"Shape","type":"string","initial":"row",)"
    R"("options":[{"name":"row","value":"row"},{"name":"ring","value":"ring"}]},)"
    R"({"name":"Shape:kind","caption":"","group":"Shape","type":"number","initial":20,)"
    R"("options":[{"name":"S","value":10},{"name":"M","value":20}]},)"
    R"({"name":"Shape:twice","caption":"","group":"Shape","type":"number","initial":4},)"
    R"({"name":"Inline:a","caption":"","group":"Inline","type":"number","initial":1},)"
    R"({"name":"Inline:b","caption":"","group":"Inline","type":"number","initial":2})"
    R"(]})";

// `json` without the blanks and line ends outside its strings.
std::string withoutLayout(const std::string& json) {
  std::string squeezed;
  bool inString = false;
  for (size_t i = 0; i < json.size(); ++i) {
    const char c = json[i];
    if (inString && c == '\\' && i + 1 < json.size()) {
      squeezed += c;
      squeezed += json[++i];
      continue;
    }
    if (c == '"') inString = !inString;
    if (inString || (c != ' ' && c != '\n')) squeezed += c;
  }
  return squeezed;
}

// Every kind of field and annotation; a list field and a nameless node are
// left out; fields on the node's own line take no annotation; an
// expression gives its value.
TEST(Parameters, ListsNamedParametersWithTheirAnnotations) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  const CommandResult result = runLumeric({"--parameters", "scene.vlm"}, dir.path());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(withoutLayout(result.out), kExpected);
  EXPECT_TRUE(!result.out.empty() && result.out.back() == '\n');
  EXPECT_EQ(result.err, "");
  EXPECT_FALSE(dir.exists("output.wrl"));
}

// -D changes the value listed, as it changes the translation; the
// playground lists without it, so that its inputs start from the scene's
// own values.
TEST(Parameters, ValuesGivenWithDAreListed) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  const CommandResult result = runLumeric({"--parameters", "-D", "Shape:size=3.5", "scene.vlm"}, dir.path());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("\"initial\": 3.5,"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"initial\": 7\n"), std::string::npos) << "twice follows size: " << result.out;
}

// Parameters of an included file are annotated from that file's lines.
TEST(Parameters, IncludedParametersTakeTheirOwnFilesComments) {
  ScratchDir dir;
  dir.write("part.vlm",
            "#VRML V1.0 ascii\n"
            "DEF Part PARAMETERS {\n"
            "\tfields [ SFFloat height ]\n"
            "\t# Height of the part\n"
            "\theight 1 # [0:4]\n"
            "}\n");
  dir.write("scene.vlm", "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE part.vlm\n}\n");
  const CommandResult result = runLumeric({"--parameters", "scene.vlm"}, dir.path());
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(result.out.find("\"caption\": \"Height of the part\""), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("\"max\": 4"), std::string::npos) << result.out;
}

TEST(Parameters, SceneErrorsAreReportedBesideTheListing) {
  ScratchDir dir;
  dir.write("scene.vlm", "#VRML V1.0 ascii\nDEF P PARAMETERS { fields [ SFFloat a ] a 1 Cube { widht 2 } }\n");
  const CommandResult result = runLumeric({"--parameters", "scene.vlm"}, dir.path());
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("Line 2"), std::string::npos) << result.err;
  EXPECT_NE(result.out.find("\"name\": \"P:a\""), std::string::npos) << result.out;
}

}  // namespace
}  // namespace lumeric
