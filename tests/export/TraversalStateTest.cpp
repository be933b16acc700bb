// The traversal state through the whole pipeline: what each grouping node
// keeps, transformations in VRML 1.0's order, mirrors, DEF/USE instancing,
// cameras and lights, inlined files.  Expected boxes are worked out by hand
// from the scenes.
#include <gtest/gtest.h>

#include <cmath>

#include "export/ExportFixture.h"
#include "core/RunState.h"
#include "export/Matrices.h"

namespace lumeric {
namespace {

using Box = std::array<double, 6>;  // low x y z, high x y z

const Rgb kRed{{100, 0, 0}}, kGrey{{80, 80, 80}};

// Numbers pass through the translation's text with six significant
// digits: an angle of a quarter turn is off by up to 4e-6.
void expectBox(const Figures& f, const Box& box) {
  for (int k = 0; k < 3; ++k) {
    EXPECT_NEAR(f.low[k], box[k], 1e-4) << "low " << k;
    EXPECT_NEAR(f.high[k], box[3 + k], 1e-4) << "high " << k;
  }
}

struct GroupingCase {
  const char* name;
  const char* scene;
  Box box;          // of all geometry
  double redArea;   // area shown in red
};

// In each scene a Cube (2 x 2 x 2, area 24) follows the grouping node; the
// node holds a Translation by 10 along X and a red Material.
const GroupingCase kGroupingCases[] = {
    {"SeparatorRestoresAll", "Separator { Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {-1, -1, -1, 1, 1, 1}, 0},
    {"GroupKeepsAll", "Group { Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {9, -1, -1, 11, 1, 1}, 24},
    {"WWWAnchorKeepsAll",
     "WWWAnchor { name \"x.wrl\" Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {9, -1, -1, 11, 1, 1}, 24},
    {"TransformSeparatorKeepsMaterialOnly",
     "TransformSeparator { Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {-1, -1, -1, 1, 1, 1}, 24},
    {"SwitchAllKeepsAll",
     "Switch { whichChild -3 Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {9, -1, -1, 11, 1, 1}, 24},
    {"SwitchNoneShowsNothing",
     "Switch { whichChild -1 Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {-1, -1, -1, 1, 1, 1}, 0},
    {"SwitchOneChild",
     "Switch { whichChild 1 Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {-1, -1, -1, 1, 1, 1}, 24},
    {"LodFirstChildOnly",
     "LOD { range [ 10 ] Translation { translation 10 0 0 } Material { diffuseColor 1 0 0 } } Cube {}",
     {9, -1, -1, 11, 1, 1}, 0},
};

class GroupingNodes : public ::testing::TestWithParam<GroupingCase> {};

TEST_P(GroupingNodes, KeepOrRestoreTheState) {
  const GroupingCase& c = GetParam();
  const ExportRun run = exportText(plainScene(std::string("Separator { ") + c.scene + " }"));
  EXPECT_EQ(run.messages, "");
  Figures f = figuresOf(run.scene);
  expectBox(f, c.box);
  EXPECT_NEAR(f.area, 24, 1e-9);
  EXPECT_NEAR(f.areaByColor[kRed], c.redArea, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Export, GroupingNodes, ::testing::ValuesIn(kGroupingCases),
                         [](const ::testing::TestParamInfo<GroupingCase>& tested) { return tested.param.name; });

struct TransformCase {
  const char* name;
  const char* transformation;  // applied to a Cube 2 x 2 x 2
  Box box;
};

const TransformCase kTransformCases[] = {
    // Scale first, then the rotation, then the translation: the last node
    // read is applied first.
    {"NodesInDocumentOrder",
     "Translation { translation 1 0 0 } Rotation { rotation 0 0 1 1.5707963 } Scale { scaleFactor 2 1 1 }",
     {0, -2, -1, 2, 2, 1}},
    {"RotationAboutCenter", "Transform { rotation 0 0 1 1.5707963 center 1 0 0 }", {0, -2, -1, 2, 0, 1}},
    // Scaling along the diagonal takes the corner (1, 1) to (2, 2) and
    // leaves (1, -1) where it is.
    {"ScaleOrientation", "Transform { scaleFactor 2 1 1 scaleOrientation 0 0 1 0.78539816 }", {-2, -2, -1, 2, 2, 1}},
    {"TransformTranslationLast", "Transform { translation 5 0 0 rotation 0 1 0 1.5707963 scaleFactor 3 1 1 }",
     {4, -1, -3, 6, 1, 3}},
    {"MatrixTransformRowVectors", "MatrixTransform { matrix 1 0 0 0  0 1 0 0  0 0 1 0  5 6 7 1 }",
     {4, 5, 6, 6, 7, 8}},
};

class Transformations : public ::testing::TestWithParam<TransformCase> {};

TEST_P(Transformations, PlaceTheCube) {
  const TransformCase& c = GetParam();
  const ExportRun run = exportText(plainScene(std::string("Separator { ") + c.transformation + " Cube {} }"));
  expectBox(figuresOf(run.scene), c.box);
}

INSTANTIATE_TEST_SUITE_P(Export, Transformations, ::testing::ValuesIn(kTransformCases),
                         [](const ::testing::TestParamInfo<TransformCase>& tested) { return tested.param.name; });

TEST(ExportMirror, KeepsFacesLookingOutwards) {
  for (const char* mirror : {"Scale { scaleFactor -1 1 1 }", "Scale { scaleFactor 1 -2 1 }",
                             "MatrixTransform { matrix -1 0 0 0  0 1 0 0  0 0 1 0  0 0 0 1 }"}) {
    const ExportRun run = exportText(plainScene(std::string("Separator { ") + mirror + " Cube {} Sphere {} }"));
    ASSERT_EQ(run.scene.nodes.size(), 2u) << mirror;
    EXPECT_LT(determinant3(run.scene.nodes[0].matrix), 0) << mirror;
    EXPECT_GT(figuresOf(run.scene).volume, 8) << mirror;
  }
}

TEST(ExportInstancing, UseUnderTheSameStateSharesTheMesh) {
  const ExportRun run = exportText(plainScene(
      "Separator { DEF Wheel Separator { Material { diffuseColor 0 0 1 } Cylinder {} }"
      " Translation { translation 5 0 0 } USE Wheel"
      " Translation { translation 5 0 0 } Material { diffuseColor 1 0 0 } USE Wheel"
      " DEF Box Cube {} Material { diffuseColor 0 1 0 } USE Box }"));
  ASSERT_EQ(run.scene.nodes.size(), 5u);
  EXPECT_EQ(run.scene.nodes[0].mesh, run.scene.nodes[1].mesh);
  EXPECT_EQ(run.scene.nodes[1].mesh, run.scene.nodes[2].mesh);
  EXPECT_EQ(run.scene.nodes[0].name, "Wheel");
  EXPECT_NEAR(run.scene.nodes[2].matrix[12], 10, 1e-12);
  // The cube is seen again under another material: a mesh of its own.
  EXPECT_NE(run.scene.nodes[3].mesh, run.scene.nodes[4].mesh);
  EXPECT_EQ(run.scene.nodes[3].name, "Box");
  EXPECT_EQ(run.scene.meshes.size(), 3u);
}

TEST(ExportInstancing, EqualPrimitivesShareOneMesh) {
  // A generator's copies are distinct nodes with equal fields.
  const ExportRun run = exportText(
      "#VRML V1.0 ascii\nSeparator { LOOP { fields [ SFFloat start, SFFloat end, SFFloat step, SFFloat position ]"
      " start 0 end 4 step 1 position 0 Separator { Translation { translation =(position*3, 0, 0) } Sphere { } }"
      " Sphere { radius 2 } } }\n",
      ExportOptions(), nullptr, "scene.vlm");
  ASSERT_EQ(run.scene.nodes.size(), 8u);
  EXPECT_EQ(run.scene.meshes.size(), 2u);
  EXPECT_NEAR(run.scene.nodes[6].matrix[12], 9, 1e-12);
}

TEST(ExportInstancing, UseOfAnEnclosingNodeEnds) {
  const ExportRun run = exportText(plainScene("DEF A Separator { Cube {} DEF B Group { Sphere {} } USE B }"));
  EXPECT_EQ(run.scene.nodes.size(), 3u);
}

// The rotation `m` applies to the direction (0, 0, -1).
std::array<double, 3> minusZ(const Matrix4& m) { return {{-m[8], -m[9], -m[10]}}; }

TEST(ExportCamerasAndLights, ArePlacedByTheTransformationInForce) {
  const ExportRun run = exportText(plainScene(
      "Separator { Translation { translation 1 2 3 }"
      " PerspectiveCamera { position 0 0 10 heightAngle 0.5 }"
      " DirectionalLight { direction 1 0 0 intensity 0.5 color 1 0 0 }"
      " Rotation { rotation 0 1 0 1.5707963 }"
      " PointLight { location 0 0 4 on FALSE }"
      " SpotLight { location 1 0 0 direction 0 -1 0 cutOffAngle 0.3 } }"));
  ASSERT_EQ(run.scene.nodes.size(), 4u);
  ASSERT_EQ(run.scene.cameras.size(), 1u);
  ASSERT_EQ(run.scene.lights.size(), 3u);
  const ExportNode& camera = run.scene.nodes[0];
  EXPECT_EQ(camera.camera, 0);
  EXPECT_NEAR(camera.matrix[14], 13, 1e-6);
  EXPECT_FLOAT_EQ(run.scene.cameras[0].heightAngle, 0.5f);
  const auto shines = minusZ(run.scene.nodes[1].matrix);
  EXPECT_NEAR(shines[0], 1, 1e-9);
  EXPECT_NEAR(shines[2], 0, 1e-9);
  EXPECT_EQ(run.scene.lights[0].type, LightType::kDirectional);
  EXPECT_FLOAT_EQ(run.scene.lights[0].intensity, 0.5f);
  // The point light at (0, 0, 4) turned about Y by a quarter: (4, 0, 0).
  EXPECT_NEAR(run.scene.nodes[2].matrix[12], 1 + 4, 1e-4);
  EXPECT_NEAR(run.scene.nodes[2].matrix[14], 3, 1e-4);
  EXPECT_FALSE(run.scene.lights[1].on);
  const auto spot = minusZ(run.scene.nodes[3].matrix);
  EXPECT_NEAR(spot[1], -1, 1e-9);
  EXPECT_FLOAT_EQ(run.scene.lights[2].cutOffAngle, 0.3f);
}

TEST(ExportInline, ReadsALocalFileInPlaceAndLeavesUrlsOut) {
  ScratchDir dir;
  dir.write("part.wrl", plainScene("Separator { Material { diffuseColor 1 0 0 } Cube {} }"));
  const ExportRun run = exportText(plainScene(
      "Separator { Translation { translation 5 0 0 } WWWInline { name \"part.wrl\" }"
      " WWWInline { name \"http://example.com/a.wrl\" } WWWInline { name \"http://example.com/b.wrl\" }"
      " Cube {} }"), ExportOptions(), &dir);
  EXPECT_EQ(run.messages, "Warning: WWWInline of a URL left out (2 times)\n");
  Figures f = figuresOf(run.scene);
  expectBox(f, {4, -1, -1, 6, 1, 1});
  // The inlined file's material stays inside it.
  EXPECT_NEAR(f.areaByColor[kRed], 24, 1e-9);
  EXPECT_NEAR(f.areaByColor[kGrey], 24, 1e-9);
}

TEST(ExportInline, MissingFileAndSelfInclusionEndQuietly) {
  ScratchDir dir;
  dir.write("self.wrl", plainScene("Separator { Cube {} WWWInline { name \"self.wrl\" } }"));
  const ExportRun run = exportText(
      plainScene("Group { WWWInline { name \"self.wrl\" } WWWInline { name \"missing.wrl\" } }"), ExportOptions(), &dir);
  EXPECT_NE(run.messages.find("Cannot read WWWInline file"), std::string::npos) << run.messages;
  EXPECT_EQ(run.scene.nodes.size(), 1u);
}

TEST(ExportInline, ConfinementRefusesFilesOutsideTheInputsDirectory) {
  ScratchDir outer;
  outer.write("outside.wrl", plainScene("Cube {}"));
  outer.write("scene/inside.wrl", plainScene("Sphere {}"));
  theRun.limits.confine = true;
  const ExportRun run = exportText(
      plainScene("Group { WWWInline { name \"../outside.wrl\" } WWWInline { name \"inside.wrl\" } }"), ExportOptions(),
      &outer, "scene/main.wrl");
  EXPECT_FALSE(theRun.limits.confine);
  EXPECT_NE(run.messages.find("outside.wrl left out"), std::string::npos) << run.messages;
  ASSERT_EQ(run.scene.nodes.size(), 1u);
  EXPECT_NEAR(figuresOf(run.scene).high[1], 1, 1e-6);  // the sphere only
}

TEST(ExportScene, CoordinatesReplacedMidwayServeTheShapesAfterThem) {
  const ExportRun run = exportText(plainScene(
      "Separator { Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] } IndexedFaceSet { coordIndex [ 0, 1, 2 ] }"
      " Coordinate3 { point [ 5 0 0, 7 0 0, 5 2 0 ] } IndexedFaceSet { coordIndex [ 0, 1, 2 ] } }"));
  const Figures f = figuresOf(run.scene);
  EXPECT_NEAR(f.area, 0.5 + 2, 1e-9);
  EXPECT_EQ(f.high, (std::array<double, 3>{{7, 2, 0}}));
}

TEST(ExportScene, AsciiTextIsLeftOutWithOneWarning) {
  const ExportRun run =
      exportText(plainScene("Separator { AsciiText { string \"a\" } Cube {} AsciiText { string \"b\" } }"));
  EXPECT_EQ(run.messages, "Warning: AsciiText is not exported\n");
  EXPECT_EQ(run.scene.nodes.size(), 1u);
}

TEST(ExportScene, EmptySceneGivesNothing) {
  const ExportRun run = exportText(plainScene("Separator { }"));
  EXPECT_TRUE(run.scene.nodes.empty());
  EXPECT_TRUE(run.scene.meshes.empty());
  EXPECT_TRUE(run.scene.materials.empty());
  const ExportRun empty = exportText("");
  EXPECT_TRUE(empty.scene.nodes.empty());
}

TEST(ExportScene, ExtendedSceneExportsItsTranslation) {
  const ExportRun run = exportText(
      "#VRML V1.0 ascii\nSeparator { LOOP { fields [ SFFloat start, SFFloat end, SFFloat step, SFFloat position ]"
      " start 0 end 3 step 1 position 0 Cube {} Translation { translation 3 0 0 } } }\n",
      ExportOptions(), nullptr, "scene.vlm");
  EXPECT_EQ(run.scene.nodes.size(), 3u);
  expectBox(figuresOf(run.scene), {-1, -1, -1, 7, 1, 1});
}

// A LOOP at the top writes one root for each repetition; every root is
// shown, each from the default state (the first root's Translation does
// not move the second).
TEST(ExportScene, EveryRootOfTheTranslationIsExported) {
  const ExportRun run = exportText(
      "#VRML V1.0 ascii\nLOOP { fields [ SFFloat start, SFFloat end, SFFloat position ]"
      " start 0 end 2 position 0 Group { Translation { translation =(position*3, 0, 0) } Cube {} } }\n",
      ExportOptions(), nullptr, "scene.vlm");
  EXPECT_EQ(run.scene.nodes.size(), 2u);
  expectBox(figuresOf(run.scene), {-1, -1, -1, 4, 1, 1});
}

}  // namespace
}  // namespace lumeric
