// The lumeric command's exports: the format from -o's extension or from
// --format, --tessellation, standard output, scenes with errors, --deps and
// the refusal to replace a file the run reads.
#include <gtest/gtest.h>

#include <cstring>

#include "export/formats/ExportTestScenes.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const char kScene[] =
    "#VRML V1.0 ascii\n"
    "Separator {\n"
    "  DEF Red Material { diffuseColor 1 0 0 }\n"
    "  DEF Box Cube { }\n"
    "  Translation { translation 3 0 0 }\n"
    "  USE Box\n"
    "}\n";

// A cube of side 2 has 12 triangles; the scene places two.
size_t stlFacets(const std::string& bytes) {
  bool ok = false;
  return readStl(bytes, ok).size();
}

// Which format -o and --format choose: how the file begins.
struct Choice {
  const char* name;
  std::vector<std::string> arguments;
  const char* output;
  std::string start;
};

class CliFormatTest : public ::testing::TestWithParam<Choice> {};

TEST_P(CliFormatTest, FormatFollowsTheExtensionOrTheOption) {
  const Choice& choice = GetParam();
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  std::vector<std::string> arguments = choice.arguments;
  arguments.push_back("scene.vlm");
  const CommandResult run = runLumeric(arguments, dir.path());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(dir.read(choice.output).compare(0, choice.start.size(), choice.start), 0) << dir.read(choice.output);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, CliFormatTest,
    ::testing::Values(Choice{"Glb", {"-o", "out.glb"}, "out.glb", "glTF"},
                      Choice{"GltfUpperCase", {"-o", "out.GLTF"}, "out.GLTF", "{"},
                      Choice{"Stl", {"-o", "out.stl"}, "out.stl", "lumeric "},
                      Choice{"Obj", {"-o", "out.obj"}, "out.obj", "# lumeric "},
                      Choice{"X3d", {"-o", "out.x3d"}, "out.x3d", "<?xml"},
                      Choice{"Wrl", {"-o", "out.wrl"}, "out.wrl", "#VRML V1.0 ascii\n"},
                      Choice{"OtherExtensionIsVrml", {"-o", "out.txt"}, "out.txt", "#VRML V1.0 ascii\n"},
                      Choice{"FormatOption", {"--format", "stl", "-o", "out.bin"}, "out.bin", "lumeric "},
                      Choice{"FormatOverridesExtension", {"--format", "wrl", "-o", "out.glb"}, "out.glb",
                             "#VRML V1.0 ascii\n"}),
    [](const ::testing::TestParamInfo<Choice>& tested) { return tested.param.name; });

TEST(CliExportTest, VrmlOutputIsUnchangedByTheExporter) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  const CommandResult byOption = runLumeric({"-o", "a.wrl", "scene.vlm"}, dir.path());
  const CommandResult byFormat = runLumeric({"--format", "WRL", "-o", "b.wrl", "scene.vlm"}, dir.path());
  ASSERT_EQ(byOption.status, 0);
  ASSERT_EQ(byFormat.status, 0);
  EXPECT_EQ(dir.read("a.wrl"), dir.read("b.wrl"));
}

TEST(CliExportTest, StandardOutputNeedsFormatAndGetsTheMainFileOnly) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  const CommandResult obj = runLumeric({"--format", "obj", "-o", "-", "scene.vlm"}, dir.path());
  ASSERT_EQ(obj.status, 0) << obj.err;
  EXPECT_EQ(obj.out.compare(0, 10, "# lumeric "), 0);
  EXPECT_EQ(obj.out.find("mtllib"), std::string::npos);
  EXPECT_EQ(readObjFaces(obj.out).size(), 24u);
  EXPECT_FALSE(dir.exists("-.mtl"));
  const CommandResult stl = runLumeric({"--format", "stl", "-o", "-", "scene.vlm"}, dir.path());
  ASSERT_EQ(stl.status, 0) << stl.err;
  EXPECT_EQ(stlFacets(stl.out), 24u);
  // Without --format, standard output gets VRML 1.0 as before.
  const CommandResult vrml = runLumeric({"-o", "-", "scene.vlm"}, dir.path());
  EXPECT_EQ(vrml.out.compare(0, 17, "#VRML V1.0 ascii\n"), 0);
}

TEST(CliExportTest, UsageErrors) {
  ScratchDir dir;
  dir.write("scene.vlm", kScene);
  struct Case {
    std::vector<std::string> arguments;
    const char* message;
  };
  const Case cases[] = {
      {{"--format", "fbx", "-o", "a.fbx"}, "lumeric: unknown format \"fbx\" (use wrl, glb, gltf, stl, obj or x3d)\n"},
      {{"--format", "glb"}, "lumeric: --format needs -o FILE\n"},
      {{"--format", "glb", "--check"}, "lumeric: --format cannot be combined with --check\n"},
      {{"--tessellation", "2", "-o", "a.glb"}, "lumeric: option --tessellation needs a whole number from 3 to 1024, not \"2\"\n"},
      {{"--tessellation", "x", "-o", "a.glb"}, "lumeric: option --tessellation needs a whole number from 3 to 1024, not \"x\"\n"},
  };
  for (const Case& c : cases) {
    std::vector<std::string> arguments = c.arguments;
    arguments.push_back("scene.vlm");
    const CommandResult run = runLumeric(arguments, dir.path());
    EXPECT_EQ(run.status, 2) << c.message;
    EXPECT_EQ(run.err.substr(0, run.err.find('\n') + 1), c.message);
  }
  EXPECT_FALSE(dir.exists("a.glb"));
  EXPECT_FALSE(dir.exists("a.fbx"));
}

TEST(CliExportTest, TessellationSetsTheSegmentsOfCurvedPrimitives) {
  ScratchDir dir;
  dir.write("ball.vlm", "#VRML V1.0 ascii\nSeparator { Sphere { } }\n");
  size_t facets[2];
  const char* counts[2] = {"6", "48"};
  for (int i = 0; i < 2; ++i) {
    const CommandResult run = runLumeric({"--tessellation", counts[i], "--format", "stl", "-o", "-", "ball.vlm"},
                                         dir.path());
    ASSERT_EQ(run.status, 0) << run.err;
    facets[i] = stlFacets(run.out);
  }
  EXPECT_GT(facets[0], 0u);
  EXPECT_GT(facets[1], 20 * facets[0]) << "eight times the segments and bands";
}

TEST(CliExportTest, SceneWithErrorsExportsWhatWasTranslatedAndExitsOne) {
  ScratchDir dir;
  dir.write("broken.vlm", "#VRML V1.0 ascii\nSeparator { Cube { } Cube { width =(1+) } }\n");
  const CommandResult run = runLumeric({"-o", "out.stl", "broken.vlm"}, dir.path());
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.err.find("error: "), std::string::npos);
  EXPECT_GE(stlFacets(dir.read("out.stl")), 12u);
  const CommandResult missing = runLumeric({"-o", "none.glb", "no-such.vlm"}, dir.path());
  EXPECT_EQ(missing.status, 1);
  EXPECT_FALSE(dir.exists("none.glb"));
}

TEST(CliExportTest, OutputToIsIgnoredWhenExporting) {
  ScratchDir dir;
  dir.write("scene.vlm", "#VRML V1.0 ascii\nSeparator { OUTPUT_TO named.wrl Cube { } }\n");
  const CommandResult run = runLumeric({"-o", "out.x3d", "scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_TRUE(dir.exists("out.x3d"));
  EXPECT_FALSE(dir.exists("named.wrl"));
}

// An export also reads what the scene shows by reference: inlined scenes
// and texture images.  --deps names them, and no export file replaces one.
TEST(CliExportTest, InlinedScenesAndTexturesCountAsRead) {
  ScratchDir dir;
  dir.write("inlined.wrl", "#VRML V1.0 ascii\nCube { }\n");
  // A PNG of one white pixel.
  const unsigned char png[] = {0x89, 'P',  'N',  'G',  0x0d, 0x0a, 0x1a, 0x0a, 0,    0,    0,    0x0d, 'I',  'H',
                               'D',  'R',  0,    0,    0,    1,    0,    0,    0,    1,    8,    0,    0,    0,
                               0,    0x3a, 0x7e, 0x9b, 0x55, 0,    0,    0,    0x0a, 'I',  'D',  'A',  'T',  0x78,
                               0x9c, 0x63, 0xf8, 0x0f, 0,    0x01, 0x01, 0x01, 0,    0x1b, 0xb6, 0xee, 0x56, 0,
                               0,    0,    0,    'I',  'E',  'N',  'D',  0xae, 0x42, 0x60, 0x82};
  dir.write("white.png", std::string(reinterpret_cast<const char*>(png), sizeof png));
  dir.write("scene.vlm",
            "#VRML V1.0 ascii\nSeparator { WWWInline { name \"inlined.wrl\" }"
            " Texture2 { filename \"white.png\" } Cube { } }\n");
  const CommandResult run = runLumeric({"--deps", "out.d", "-o", "out.glb", "scene.vlm"}, dir.path());
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string rule = dir.read("out.d");
  EXPECT_EQ(rule.substr(0, rule.find('\n')), "out.glb: scene.vlm inlined.wrl white.png") << rule;
  const CommandResult onto = runLumeric({"-o", "inlined.wrl", "--format", "glb", "scene.vlm"}, dir.path());
  EXPECT_EQ(onto.status, 1);
  EXPECT_NE(onto.err.find("Refusing to overwrite inlined.wrl, which this run reads"), std::string::npos) << onto.err;
  EXPECT_EQ(dir.read("inlined.wrl"), "#VRML V1.0 ascii\nCube { }\n");
}

TEST(CliExportTest, NoExportFileReplacesAFileTheRunReads) {
  ScratchDir dir;
  // The scene itself, and the material library an OBJ would write beside.
  dir.write("scene.glb", kScene);
  dir.write("out.mtl", "#VRML V1.0 ascii\nCube { }\n");
  dir.write("uses.vlm", "#VRML V1.0 ascii\nSeparator { INCLUDE out.mtl }\n");
  const CommandResult self = runLumeric({"-o", "scene.glb", "scene.glb"}, dir.path());
  EXPECT_EQ(self.status, 1);
  EXPECT_NE(self.err.find("error: Refusing to overwrite scene.glb, which this run reads"), std::string::npos)
      << self.err;
  EXPECT_EQ(dir.read("scene.glb"), kScene);
  const CommandResult companion = runLumeric({"-o", "out.obj", "uses.vlm"}, dir.path());
  EXPECT_EQ(companion.status, 1);
  EXPECT_NE(companion.err.find("Refusing to overwrite out.mtl, which this run reads"), std::string::npos)
      << companion.err;
  EXPECT_FALSE(dir.exists("out.obj")) << "nothing of the export is written";
}

TEST(CliExportTest, GltfValidatorFindsNoErrorInAnExample) {
  const std::string modules = gltfValidatorModules();
  if (modules.empty()) GTEST_SKIP() << "the glTF validator is not installed";
  ScratchDir dir;
  for (const char* name : {"out.glb", "out.gltf"}) {
    const CommandResult run =
        runLumeric({"-o", dir.path() + "/" + name, std::string(LUMERIC_SOURCE_DIR) + "/examples/molecule.vlm"},
                   dir.path());
    ASSERT_EQ(run.status, 0) << run.err;
    std::string report;
    ASSERT_EQ(runCommand("NODE_PATH='" + modules + "' node '" + LUMERIC_TEST_DIR +
                             "/export/formats/validate_gltf.cjs' '" + dir.path() + "/" + name + "'",
                         report),
              0)
        << report;
    EXPECT_EQ(report.compare(0, 9, "errors 0 "), 0) << report;
  }
}

}  // namespace
}  // namespace lumeric
