// Every writer on scenes no traversal should make: numbers that are not
// finite and references out of range.  Each writes its file, leaves out
// what it cannot write, and counts it.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/TinyGltf.h"
#include "support/RecordingView.h"

namespace lumeric {
namespace {

ExportScene oddScene() {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  ExportScene scene = cubesScene({identityMatrix()});
  ExportPrimitive bad = cubePrimitive(7);  // no such material
  bad.positions[4] = nan;
  bad.normals[0] = inf;
  scene.meshes[0].primitives.push_back(bad);
  ExportPrimitive colours = pointPrimitive(0);
  colours.colors[0] = nan;
  colours.colors[1] = 5;
  scene.meshes[0].primitives.push_back(colours);
  ExportMaterial odd;
  odd.diffuse = {{nan, -1, 2}};
  odd.shininess = nan;
  odd.transparency = inf;
  odd.texture = 3;  // no such texture
  scene.materials.push_back(odd);
  scene.meshes[0].primitives.push_back(cubePrimitive(1));
  ExportNode node;
  node.mesh = 0;
  node.matrix[0] = nan;
  scene.nodes.push_back(node);
  node.mesh = 5;  // no such mesh
  node.camera = 9;
  node.light = 9;
  scene.nodes.push_back(node);
  ExportCamera camera;
  camera.heightAngle = nan;
  camera.nearDistance = -1;
  camera.farDistance = nan;
  camera.aspectRatio = 0;
  scene.cameras.push_back(camera);
  ExportLight light;
  light.type = LightType::kSpot;
  light.cutOffAngle = nan;
  light.intensity = inf;
  scene.lights.push_back(light);
  node = ExportNode();
  node.camera = 0;
  node.light = 0;
  node.matrix[13] = inf;
  scene.nodes.push_back(node);
  return scene;
}

class OddScenesTest : public ::testing::TestWithParam<ExportFormat> {};

TEST_P(OddScenesTest, WriterKeepsWhatItCanAndCountsTheRest) {
  RecordingView view;
  const ExportScene scene = oddScene();
  ExportedFiles files;
  {
    ExportMessages messages(&view);
    ASSERT_TRUE(writeExport(GetParam(), scene, "odd.out", files, messages));
    holdWhole(files);
  }
  ASSERT_FALSE(files.empty());
  EXPECT_FALSE(files[0].bytes.empty());
  EXPECT_EQ(view.errorCount(), 0);
  if (GetParam() == ExportFormat::kGlb) {
    // The loader takes it: no null where a number belongs.
    tinygltf::Model model;
    tinygltf::TinyGLTF loader;
    std::string errors, warnings;
    EXPECT_TRUE(loader.LoadBinaryFromMemory(&model, &errors, &warnings,
                                            reinterpret_cast<const unsigned char*>(files[0].bytes.data()),
                                            static_cast<unsigned>(files[0].bytes.size())))
        << errors;
    EXPECT_EQ(files[0].bytes.find("null"), std::string::npos);
  }
  if (GetParam() == ExportFormat::kStl || GetParam() == ExportFormat::kGlb) {
    EXPECT_NE(view.transcript().find("Warning: Primitive with a coordinate that is not finite left out"),
              std::string::npos)
        << view.transcript();
  }
}

std::string formatName(const ::testing::TestParamInfo<ExportFormat>& tested) {
  static const char* const kNames[] = {"Wrl", "Glb", "Gltf", "Stl", "Obj", "X3d"};
  return kNames[static_cast<int>(tested.param)];
}

INSTANTIATE_TEST_SUITE_P(Formats, OddScenesTest,
                         ::testing::Values(ExportFormat::kGlb, ExportFormat::kGltf, ExportFormat::kStl,
                                           ExportFormat::kObj, ExportFormat::kX3d),
                         formatName);

TEST(WriteExportTest, VrmlIsNoExport) {
  RecordingView view;
  ExportMessages messages(&view);
  ExportedFiles files;
  EXPECT_FALSE(writeExport(ExportFormat::kWrl, ExportScene(), "a.wrl", files, messages));
  EXPECT_EQ(view.transcript(), "error: VRML 1.0 is written by the translator, not exported\n");
}

}  // namespace
}  // namespace lumeric
