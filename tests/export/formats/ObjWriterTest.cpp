// The OBJ writer: faces wound outwards in world coordinates, its material
// library and textures beside it, and assimp reading it back.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/FormatWriters.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

ExportedFiles writeObjFiles(const ExportScene& scene, const std::string& path, std::string* transcript = nullptr) {
  RecordingView view;
  ExportedFiles files;
  {
    ExportMessages messages(&view);
    EXPECT_TRUE(writeObj(scene, path, files, messages));
    holdWhole(files);
  }
  if (transcript != nullptr) *transcript = view.transcript();
  return files;
}

// The lines of `text` that start with `key` and a space.
std::vector<std::string> linesOf(const std::string& text, const std::string& key) {
  std::vector<std::string> found;
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    if (line.compare(0, key.size() + 1, key + " ") == 0) found.push_back(line);
  }
  return found;
}

TEST(ObjWriterTest, FacesStayOutsideUnderEveryPlacement) {
  const Matrix4 placements[] = {identityMatrix(), translation(1, 2, 3), scaling(-1, 1, 1),
                                multiply(rotationZ(1), scaling(1, -2, 1)), scaling(-1, -1, -1)};
  const double volumes[] = {8, 8, 8, 16, 8};
  for (size_t i = 0; i < 5; ++i) {
    const ExportedFiles files = writeObjFiles(cubesScene({placements[i]}), "cube.obj");
    const std::vector<Triangle> triangles = readObjFaces(files.at(0).bytes);
    EXPECT_EQ(triangles.size(), 12u);
    EXPECT_NEAR(signedVolume(triangles), volumes[i], 1e-4) << "placement " << i;
  }
}

TEST(ObjWriterTest, NormalsStayAcrossTheirFacesUnderScale) {
  // Sheared and scaled: a normal placed like a point would lean.
  Matrix4 shear = multiply(scaling(3, 1, 0.5), rotationZ(0.3));
  shear[4] += 0.7;
  const std::string obj = writeObjFiles(cubesScene({shear}), "cube.obj").at(0).bytes;
  std::vector<std::array<double, 3>> positions, normals;
  for (const std::string& line : linesOf(obj, "v")) {
    std::istringstream words(line.substr(2));
    std::array<double, 3> p;
    words >> p[0] >> p[1] >> p[2];
    positions.push_back(p);
  }
  for (const std::string& line : linesOf(obj, "vn")) {
    std::istringstream words(line.substr(3));
    std::array<double, 3> n;
    words >> n[0] >> n[1] >> n[2];
    normals.push_back(n);
  }
  ASSERT_EQ(positions.size(), 24u);
  ASSERT_EQ(normals.size(), 24u);
  // The four corners of each face: every edge is across the face's normal,
  // and the normal points away from the cube's centre.
  for (size_t face = 0; face < 6; ++face) {
    const std::array<double, 3>& n = normals[face * 4];
    double outward = 0;
    for (int k = 0; k < 3; ++k) outward += n[k] * positions[face * 4][k];
    EXPECT_GT(outward, 0) << "face " << face;
    for (size_t corner = 1; corner < 4; ++corner) {
      double across = 0;
      for (int k = 0; k < 3; ++k) across += n[k] * (positions[face * 4 + corner][k] - positions[face * 4][k]);
      EXPECT_NEAR(across, 0, 1e-5) << "face " << face << " corner " << corner;
    }
  }
  EXPECT_NE(obj.find("f 1/1/1 2/2/2 3/3/3\n"), std::string::npos);
}

TEST(ObjWriterTest, MaterialLibraryAndTextureBesideTheObj) {
  ExportScene scene = cubesScene({identityMatrix(), translation(3, 0, 0)});
  ExportMaterial& red = scene.materials[0];
  red.name = "my red";
  red.ambient = {{0.1f, 0.2f, 0.3f}};
  red.specular = {{0.5f, 0.5f, 0.5f}};
  red.emissive = {{0, 0, 0.25f}};
  red.shininess = 0.5f;
  red.transparency = 0.25f;
  red.texture = 0;
  red.textureTransform = {{2, 0, 0, 0, 1, 0, 0.5f, 0, 1}};  // s' = 2 s + 0.5
  ExportMaterial other;
  other.name = "my red";
  other.unlit = true;
  scene.materials.push_back(other);
  scene.meshes[0].primitives.push_back(linePrimitive(1));
  scene.meshes[0].primitives.push_back(pointPrimitive(-1));
  ExportTexture texture;
  texture.bytes = {0xff, 0xd8, 0xff, 0xe0};
  texture.mimeType = "image/jpeg";
  scene.textures.push_back(texture);

  const ExportedFiles files = writeObjFiles(scene, "out/my scene.obj");
  ASSERT_EQ(files.size(), 3u);
  EXPECT_EQ(files[0].path, "out/my scene.obj");
  EXPECT_EQ(files[1].path, "out/my_scene.mtl");
  EXPECT_EQ(files[2].path, "out/my_scene-texture1.jpg");
  EXPECT_EQ(files[2].bytes, std::string("\xff\xd8\xff\xe0"));
  const std::string& obj = files[0].bytes;
  EXPECT_EQ(linesOf(obj, "mtllib"), std::vector<std::string>{"mtllib my_scene.mtl"});
  EXPECT_EQ(linesOf(obj, "o"), (std::vector<std::string>{"o Cube1", "o Cube2"}));
  EXPECT_EQ(linesOf(obj, "usemtl"), (std::vector<std::string>{"usemtl my_red", "usemtl my_red_2", "usemtl default",
                                                               "usemtl my_red", "usemtl my_red_2", "usemtl default"}));
  EXPECT_EQ(linesOf(obj, "f").size(), 24u);
  // The second cube's lines and points, numbered after everything before.
  const std::vector<std::string> segments = linesOf(obj, "l");
  ASSERT_EQ(segments.size(), 4u);
  EXPECT_EQ(segments[2], "l 56 57");
  const std::vector<std::string> points = linesOf(obj, "p");
  ASSERT_EQ(points.size(), 6u);
  EXPECT_EQ(points[3], "p 59");
  EXPECT_EQ(linesOf(obj, "v")[30], "v 5 5 5 1 1 1") << "points carry their colours";
  // The texture transform is in the texture coordinates: (0, 0) -> (0.5, 0).
  EXPECT_EQ(linesOf(obj, "vt")[0], "vt 0.5 0");
  EXPECT_EQ(linesOf(obj, "vt")[2], "vt 2.5 1");

  const std::string& mtl = files[1].bytes;
  EXPECT_NE(mtl.find("newmtl my_red\nKa 0.1 0.2 0.3\nKd 1 0 0\nKs 0.5 0.5 0.5\nKe 0 0 0.25\nNs 64\nd 0.75\n"
                     "illum 2\nmap_Kd my_scene-texture1.jpg\n"),
            std::string::npos)
      << mtl;
  EXPECT_NE(mtl.find("newmtl my_red_2\n"), std::string::npos);
  EXPECT_NE(mtl.find("illum 0\n"), std::string::npos) << "unlit lines";
  EXPECT_NE(mtl.find("newmtl default\nKa 0.2 0.2 0.2\nKd 0.8 0.8 0.8\n"), std::string::npos);
}

TEST(ObjWriterTest, StandardOutputGetsTheObjAlone) {
  ExportScene scene = cubesScene({identityMatrix()});
  scene.textures.push_back(ExportTexture{"t", {1, 2, 3}, "image/png", true, true});
  scene.materials[0].texture = 0;
  const ExportedFiles files = writeObjFiles(scene, "-");
  ASSERT_EQ(files.size(), 1u);
  EXPECT_TRUE(linesOf(files[0].bytes, "mtllib").empty());
  EXPECT_EQ(linesOf(files[0].bytes, "f").size(), 12u);
}

TEST(ObjWriterTest, EmptySceneGivesAnObjWithoutGeometry) {
  const ExportedFiles files = writeObjFiles(ExportScene(), "empty.obj");
  ASSERT_EQ(files.size(), 2u);
  EXPECT_TRUE(linesOf(files[0].bytes, "v").empty());
  EXPECT_EQ(files[1].bytes.compare(0, 10, "# lumeric "), 0);
}

TEST(ObjWriterTest, AssimpLoadsTheObjWithItsMaterials) {
  if (!haveProgram("assimp")) GTEST_SKIP() << "assimp is not installed";
  ScratchDir dir;
  ExportScene scene = cubesScene({translation(-2, 0, 0), multiply(translation(3, 0, 0), scaling(-1, 2, 1))});
  ExportMaterial blue;
  blue.name = "Blue";
  blue.diffuse = {{0, 0, 1}};
  scene.materials.push_back(blue);
  scene.meshes[0].primitives.push_back(linePrimitive(1));
  for (const ExportedFile& file : writeObjFiles(scene, dir.path() + "/cubes.obj")) writeFile(file.path, file.bytes);
  std::string report;
  ASSERT_EQ(runCommand("assimp info '" + dir.path() + "/cubes.obj'", report), 0) << report;
  // 24 triangles and 4 segments; both materials (and assimp's own default).
  EXPECT_NE(report.find("Faces:              28\n"), std::string::npos) << report;
  EXPECT_NE(report.find("'Red'"), std::string::npos) << report;
  EXPECT_NE(report.find("'Blue'"), std::string::npos) << report;
  EXPECT_NE(report.find("Minimum point      (-3.000000 -2.000000 -1.000000)"), std::string::npos) << report;
  EXPECT_NE(report.find("Maximum point      (4.000000 2.000000 1.000000)"), std::string::npos) << report;
}

}  // namespace
}  // namespace lumeric
