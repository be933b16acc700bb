// The X3D writer: instancing through DEF/USE, placement by Transform or in
// world coordinates, appearances, and view3dscene's converter reading it.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/FormatWriters.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

std::string writeX3dText(const ExportScene& scene, ExportedFiles* all = nullptr, const std::string& path = "scene.x3d") {
  RecordingView view;
  ExportMessages messages(&view);
  ExportedFiles files;
  EXPECT_TRUE(writeX3d(scene, path, files, messages));
  if (all != nullptr) *all = files;
  return files.at(0).bytes;
}

size_t occurrences(const std::string& text, const std::string& part) {
  size_t count = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// The value of attribute `name` in the first element at or after `from`.
std::string attribute(const std::string& xml, size_t from, const std::string& name) {
  const size_t end = xml.find('>', from);
  const size_t at = xml.find(" " + name + "=\"", from);
  if (at == std::string::npos || at > end) return "";
  const size_t start = at + name.size() + 3;
  return xml.substr(start, xml.find('"', start) - start);
}

std::vector<double> numbersIn(const std::string& text) {
  std::string spaced = text;
  for (char& c : spaced) c = c == ',' ? ' ' : c;
  std::istringstream words(spaced);
  std::vector<double> values;
  double v;
  while (words >> v) values.push_back(v);
  return values;
}

// The triangles of the first IndexedTriangleSet at or after `from`, as
// written (the scene's own coordinates).
std::vector<Triangle> trianglesAt(const std::string& xml, size_t from) {
  const size_t set = xml.find("<IndexedTriangleSet", from);
  const std::vector<double> index = numbersIn(attribute(xml, set, "index"));
  const std::vector<double> point = numbersIn(attribute(xml, xml.find("<Coordinate", set), "point"));
  std::vector<Triangle> triangles;
  for (size_t t = 0; t + 2 < index.size(); t += 3) {
    Triangle triangle;
    for (int c = 0; c < 3; ++c) {
      for (int k = 0; k < 3; ++k) triangle[c][k] = point.at(static_cast<size_t>(index[t + c]) * 3 + k);
    }
    triangles.push_back(triangle);
  }
  return triangles;
}

TEST(X3dWriterTest, ExactPlacementsShareOneGroupAndOthersAreBaked) {
  Matrix4 shear = identityMatrix();
  shear[4] = 0.5;
  const ExportScene scene =
      cubesScene({identityMatrix(), multiply(translation(3, 0, 0), multiply(rotationZ(0.5), scaling(2, 2, 1))),
                  scaling(-1, 1, 1), shear});
  const std::string xml = writeX3dText(scene);
  EXPECT_EQ(occurrences(xml, "<Transform "), 2u);
  EXPECT_EQ(occurrences(xml, "<Group DEF=\"Cube\">"), 1u);
  EXPECT_EQ(occurrences(xml, "<Group USE=\"Cube\"/>"), 1u);
  const size_t second = xml.find("<Transform DEF=\"Cube2\"");
  ASSERT_NE(second, std::string::npos);
  EXPECT_EQ(attribute(xml, second, "translation"), "3 0 0");
  EXPECT_EQ(attribute(xml, second, "rotation"), "0 0 1 0.5");
  EXPECT_EQ(attribute(xml, second, "scale"), "2 2 1");
  // The mirror and the shear are written in world coordinates, each in a
  // Group named after its node, wound so that the cube stays outside.
  const size_t mirror = xml.find("<Group DEF=\"Cube3\">");
  const size_t sheared = xml.find("<Group DEF=\"Cube4\">");
  ASSERT_NE(mirror, std::string::npos);
  ASSERT_NE(sheared, std::string::npos);
  EXPECT_NEAR(signedVolume(trianglesAt(xml, mirror)), 8, 1e-5);
  EXPECT_NEAR(signedVolume(trianglesAt(xml, sheared)), 8, 1e-5);
  // The first corner, (1, -1, -1), sheared by x += y / 2.
  EXPECT_EQ(numbersIn(attribute(xml, xml.find("<Coordinate", sheared), "point"))[0], 0.5);
  // One appearance, used again.
  EXPECT_EQ(occurrences(xml, "<Appearance DEF=\"Red\">"), 1u);
  EXPECT_EQ(occurrences(xml, "<Appearance USE=\"Red\"/>"), 2u);
}

TEST(X3dWriterTest, NamesAreMadeSafeAndUniqueAndTextIsEscaped) {
  ExportScene scene = cubesScene({identityMatrix(), translation(1, 0, 0), translation(2, 0, 0)});
  scene.nodes[0].name = "a&b <c>";
  scene.nodes[1].name = "a&b <c>";
  scene.nodes[2].name = "3rd";
  scene.meshes[0].name = "a_b__c_";  // taken by the first node already
  ExportCamera camera;
  camera.name = "View \"1\" & <2>";
  scene.cameras.push_back(camera);
  ExportNode eye;
  eye.camera = 0;
  eye.name = "View \"1\" & <2>";
  scene.nodes.push_back(eye);
  const std::string xml = writeX3dText(scene);
  EXPECT_NE(xml.find("<Transform DEF=\"a_b__c_\""), std::string::npos) << xml;
  EXPECT_NE(xml.find("<Group DEF=\"a_b__c__2\">"), std::string::npos);
  EXPECT_NE(xml.find("<Transform DEF=\"a_b__c__3\""), std::string::npos);
  EXPECT_NE(xml.find("<Transform DEF=\"_3rd\""), std::string::npos);
  EXPECT_NE(xml.find("description=\"View &quot;1&quot; &amp; &lt;2&gt;\""), std::string::npos);
  EXPECT_EQ(xml.find("<2>"), std::string::npos);
}

TEST(X3dWriterTest, MaterialsLinesPointsAndTextures) {
  ExportScene scene = cubesScene({identityMatrix()});
  ExportMaterial& red = scene.materials[0];
  red.transparency = 0.5f;
  red.shininess = 0.75f;
  red.ambient = {{0.5f, 0, 0}};  // a third of the diffuse colour's mean
  red.doubleSided = true;
  red.texture = 0;
  red.textureTransform = {{1, 0, 0, 0, 1, 0, 0.5f, 0.25f, 1}};
  scene.textures.push_back(ExportTexture{"t", {0x89, 'P', 'N', 'G'}, "image/png", false, true});
  ExportMaterial line;
  line.unlit = true;
  line.diffuse = {{0, 1, 0}};
  scene.materials.push_back(line);
  scene.meshes[0].primitives.push_back(linePrimitive(1));
  scene.meshes[0].primitives.push_back(pointPrimitive(1));
  ExportedFiles files;
  const std::string xml = writeX3dText(scene, &files, "dir/scene.x3d");
  ASSERT_EQ(files.size(), 2u);
  EXPECT_EQ(files[1].path, "dir/scene-texture1.png");
  const size_t material = xml.find("<Material");
  EXPECT_EQ(attribute(xml, material, "diffuseColor"), "1 0 0");
  EXPECT_EQ(attribute(xml, material, "transparency"), "0.5");
  EXPECT_EQ(attribute(xml, material, "shininess"), "0.75");
  EXPECT_NEAR(std::stod(attribute(xml, material, "ambientIntensity")), 0.5, 1e-6);
  EXPECT_NE(xml.find("<ImageTexture url=\"&quot;scene-texture1.png&quot;\" repeatS=\"false\"/>"), std::string::npos);
  EXPECT_NE(xml.find("<IndexedTriangleSet solid=\"false\" index=\"0 1 2 0 2 3 "), std::string::npos);
  EXPECT_EQ(numbersIn(attribute(xml, xml.find("<TextureCoordinate"), "point"))[1], 0.25);
  // Lines and points are unlit: their colour is emissive.
  const size_t unlit = xml.find("<Material", material + 1);
  EXPECT_EQ(attribute(xml, unlit, "emissiveColor"), "0 1 0");
  EXPECT_NE(xml.find("<IndexedLineSet coordIndex=\"0 1 -1 1 2 -1\">"), std::string::npos);
  const size_t points = xml.find("<PointSet>");
  ASSERT_NE(points, std::string::npos);
  EXPECT_EQ(attribute(xml, xml.find("<Coordinate", points), "point"), "0 0 0, 1 0 0, 1 1 0") << "only the points indexed";
  EXPECT_EQ(attribute(xml, xml.find("<ColorRGBA", points), "color"), "1 0 0 1, 0 1 0 1, 0 0 1 1");
  // On standard output the texture is left out.
  files.clear();
  writeX3dText(scene, &files, "-");
  EXPECT_EQ(files.size(), 1u);
}

TEST(X3dWriterTest, ViewpointsAndLightsInWorldCoordinates) {
  ExportScene scene;
  ExportCamera wide;
  wide.heightAngle = 1.0f;
  wide.aspectRatio = 0.5f;  // taller than wide: the horizontal angle is the smaller
  ExportCamera flat;
  flat.perspective = false;
  flat.height = 4;
  flat.aspectRatio = 2;
  scene.cameras = {wide, flat};
  ExportLight spot;
  spot.type = LightType::kSpot;
  spot.cutOffAngle = 0.5f;
  spot.dropOffRate = 0.5f;
  scene.lights = {spot};
  ExportNode node;
  node.camera = 0;
  node.matrix = multiply(translation(0, 1, 5), scaling(3, 3, 3));
  scene.nodes.push_back(node);
  node.camera = 1;
  node.matrix = identityMatrix();
  scene.nodes.push_back(node);
  node.camera = -1;
  node.light = 0;
  node.matrix = multiply(translation(0, 4, 0), Matrix4{{1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1}});
  scene.nodes.push_back(node);
  const std::string xml = writeX3dText(scene);
  const size_t viewpoint = xml.find("<Viewpoint");
  ASSERT_NE(viewpoint, std::string::npos);
  EXPECT_EQ(attribute(xml, viewpoint, "position"), "0 1 5");
  EXPECT_EQ(attribute(xml, viewpoint, "orientation"), "0 0 1 0");
  EXPECT_NEAR(std::stod(attribute(xml, viewpoint, "fieldOfView")), 2 * std::atan(std::tan(0.5) * 0.5), 1e-6);
  EXPECT_EQ(attribute(xml, xml.find("<OrthoViewpoint"), "fieldOfView"), "-4 -2 4 2");
  EXPECT_NE(xml.find("<component name=\"Navigation\" level=\"3\"/>"), std::string::npos);
  const size_t light = xml.find("<SpotLight");
  ASSERT_NE(light, std::string::npos);
  EXPECT_EQ(attribute(xml, light, "location"), "0 4 0");
  EXPECT_EQ(attribute(xml, light, "direction"), "0 -1 0") << "the node's -Z, turned down";
  EXPECT_EQ(attribute(xml, light, "cutOffAngle"), "0.5");
  EXPECT_EQ(attribute(xml, light, "beamWidth"), "0.25");
}

TEST(X3dWriterTest, View3dsceneReadsItWithoutComplaint) {
  if (!haveProgram("tovrmlx3d")) GTEST_SKIP() << "view3dscene is not installed";
  ScratchDir dir;
  ExportScene scene = cubesScene({identityMatrix(), translation(3, 0, 0), scaling(-1, 1, 1)});
  scene.meshes[0].primitives.push_back(linePrimitive(0));
  scene.meshes[0].primitives.push_back(pointPrimitive(0));
  scene.cameras.push_back(ExportCamera());
  scene.lights.push_back(ExportLight());
  ExportNode node;
  node.name = "Eye <1>";
  node.camera = 0;
  node.light = 0;
  node.matrix = translation(0, 0, 10);
  scene.nodes.push_back(node);
  for (const ExportScene& each : {ExportScene(), scene}) {
    const std::string path = dir.write("scene.x3d", writeX3dText(each));
    std::string report;
    ASSERT_EQ(runCommand("tovrmlx3d '" + path + "' --encoding classic", report), 0) << report;
    EXPECT_EQ(report.find("Warning"), std::string::npos) << report;
    EXPECT_EQ(report.find("Error"), std::string::npos) << report;
    if (each.nodes.empty()) continue;
    EXPECT_NE(report.find("IndexedTriangleSet"), std::string::npos) << report;
    EXPECT_NE(report.find("USE Cube"), std::string::npos) << report;
  }
}

}  // namespace
}  // namespace lumeric
