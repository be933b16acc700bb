// Material binding in all eight modes on face sets, line sets, point sets
// and primitives: the area (or the segments, or the points) shown in each
// colour, worked out from the scenes by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "export/ExportFixture.h"

namespace lumeric {
namespace {

const Rgb kRed{{100, 0, 0}}, kGreen{{0, 100, 0}}, kBlue{{0, 0, 100}};

// Two faces: A, the unit square (area 1), and B, a 2 x 1 rectangle
// (area 2); three materials red, green, blue.
std::string twoFaces(const char* binding, const char* materialIndex) {
  return plainScene(std::string("Separator { Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] }"
                                " MaterialBinding { value ") + binding + " }"
                    " Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 2 0 0, 4 0 0, 4 1 0, 2 1 0 ] }"
                    " IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 4, 5, 6, 7, -1 ] materialIndex [ " +
                    materialIndex + " ] } }");
}

struct BindingCase {
  const char* binding;
  const char* materialIndex;
  double red, green, blue;
  bool vertexColors;
};

const BindingCase kFaceSetCases[] = {
    {"DEFAULT", "2, 1", 3, 0, 0, false},
    {"OVERALL", "2, 1", 3, 0, 0, false},
    {"PER_PART", "2, 1", 1, 2, 0, false},
    {"PER_FACE", "2, 1", 1, 2, 0, false},
    {"PER_PART_INDEXED", "2, 1", 0, 2, 1, false},
    {"PER_FACE_INDEXED", "2, 1", 0, 2, 1, false},
    // Per vertex the first corner of each triangle gives its colour here:
    // vertex 0 is red, vertex 4, beyond the three materials, counts round
    // the list to green...
    {"PER_VERTEX", "-1", 1, 2, 0, true},
    // ...and the materials of the corners' own entries when indexed.
    {"PER_VERTEX_INDEXED", "1, 1, 1, 1, -1, 2, 2, 2, 2, -1", 0, 1, 2, true},
};

class FaceSetBinding : public ::testing::TestWithParam<BindingCase> {};

TEST_P(FaceSetBinding, ColoursTheFaces) {
  const BindingCase& c = GetParam();
  const ExportRun run = exportText(twoFaces(c.binding, c.materialIndex));
  EXPECT_EQ(run.messages, "");
  Figures f = figuresOf(run.scene);
  EXPECT_NEAR(f.area, 3, 1e-9);
  EXPECT_NEAR(f.areaByColor[kRed], c.red, 1e-9);
  EXPECT_NEAR(f.areaByColor[kGreen], c.green, 1e-9);
  EXPECT_NEAR(f.areaByColor[kBlue], c.blue, 1e-9);
  ASSERT_EQ(run.scene.meshes.size(), 1u);
  const auto& primitives = run.scene.meshes[0].primitives;
  for (const ExportPrimitive& p : primitives) EXPECT_EQ(p.colors.empty(), !c.vertexColors) << c.binding;
  if (c.vertexColors) {
    ASSERT_EQ(primitives.size(), 1u);
    // Vertex colours replace the diffuse colour: the material is white.
    EXPECT_EQ(run.scene.materials[static_cast<size_t>(primitives[0].material)].diffuse,
              (std::array<float, 3>{{1, 1, 1}}));
  }
}

INSTANTIATE_TEST_SUITE_P(Export, FaceSetBinding, ::testing::ValuesIn(kFaceSetCases),
                         [](const ::testing::TestParamInfo<BindingCase>& tested) { return tested.param.binding; });

TEST(FaceSetBinding, PerVertexColoursFollowTheVertices) {
  const ExportRun run = exportText(twoFaces("PER_VERTEX", "-1"));
  ASSERT_EQ(run.scene.meshes.size(), 1u);
  const ExportPrimitive& p = run.scene.meshes[0].primitives[0];
  // Vertices in coordIndex order take materials 0, 1, 2 and then, beyond
  // the list, count round it again: 0, 1, 2, 0, 1.
  const std::map<std::pair<int, int>, Rgb> expected{{{0, 0}, kRed},   {{1, 0}, kGreen}, {{1, 1}, kBlue},
                                                    {{0, 1}, kRed},   {{2, 0}, kGreen}, {{4, 0}, kBlue},
                                                    {{4, 1}, kRed},   {{2, 1}, kGreen}};
  ASSERT_EQ(p.vertexCount(), 8u);
  for (size_t v = 0; v < p.vertexCount(); ++v) {
    const std::pair<int, int> at{static_cast<int>(p.positions[v * 3]), static_cast<int>(p.positions[v * 3 + 1])};
    const Rgb color{{static_cast<int>(std::lround(p.colors[v * 4] * 100)),
                     static_cast<int>(std::lround(p.colors[v * 4 + 1] * 100)),
                     static_cast<int>(std::lround(p.colors[v * 4 + 2] * 100))}};
    EXPECT_EQ(color, expected.at(at)) << at.first << "," << at.second;
  }
}

TEST(PrimitiveBinding, PartsTakeTheirMaterialsInOrder) {
  // A cube's faces: front, back, left, right, top, bottom; six colours
  // given, each face 4.
  const ExportRun cube = exportText(plainScene(
      "Separator { Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1, 1 1 0, 0 1 1, 1 0 1 ] }"
      " MaterialBinding { value PER_FACE } Cube {} }"));
  Figures f = figuresOf(cube.scene);
  EXPECT_EQ(f.areaByColor.size(), 6u);
  for (const auto& entry : f.areaByColor) EXPECT_NEAR(entry.second, 4, 1e-9);
  ASSERT_EQ(cube.scene.meshes[0].primitives.size(), 6u);
  // The front face (+Z) is red.
  const ExportPrimitive& front = cube.scene.meshes[0].primitives[0];
  for (size_t v = 0; v < front.vertexCount(); ++v) EXPECT_FLOAT_EQ(front.positions[v * 3 + 2], 1);

  // A cylinder's sides, top and bottom, of 24 segments: the sides are 24
  // rectangles 2 sin(pi/24) wide and 2 high, each cap 24 triangles of
  // area sin(2 pi/24) / 2.
  const ExportRun cylinder = exportText(plainScene(
      "Separator { Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] } MaterialBinding { value PER_PART } Cylinder {} }"));
  f = figuresOf(cylinder.scene);
  const double pi = 3.14159265358979;
  EXPECT_NEAR(f.areaByColor[kRed], 24 * 2 * std::sin(pi / 24) * 2, 1e-5);
  EXPECT_NEAR(f.areaByColor[kGreen], 12 * std::sin(2 * pi / 24), 1e-5);
  EXPECT_NEAR(f.areaByColor[kBlue], 12 * std::sin(2 * pi / 24), 1e-5);

  // A cone's or a cylinder's parts are not faces: under a face binding the
  // first material covers the whole shape.
  for (const char* shape : {"Cone {}", "Cylinder {}"}) {
    const ExportRun perFace = exportText(plainScene(std::string("Separator { Material { diffuseColor [ 1 0 0, 0 1 0 ] }"
                                                                " MaterialBinding { value PER_FACE } ") +
                                                    shape + " }"));
    const auto areas = figuresOf(perFace.scene).areaByColor;
    EXPECT_EQ(areas.count(kGreen), 0u) << shape;
    EXPECT_GT(areas.at(kRed), 0) << shape;
  }

  // A Material of emissive colours alone is shown unlit in those colours.
  const ExportRun emissive = exportText(plainScene(
      "Separator { Material { ambientColor [] diffuseColor [] specularColor [] emissiveColor [ 1 0 0, 0 1 0 ] }"
      " MaterialBinding { value PER_FACE } Cube {} }"));
  f = figuresOf(emissive.scene);
  EXPECT_NEAR(f.areaByColor[kRed], 12, 1e-9);
  EXPECT_NEAR(f.areaByColor[kGreen], 12, 1e-9);
  ASSERT_FALSE(emissive.scene.materials.empty());
  EXPECT_TRUE(emissive.scene.materials[0].unlit);

  // OVERALL: the first material everywhere.
  const ExportRun overall = exportText(plainScene(
      "Separator { Material { diffuseColor [ 1 0 0, 0 1 0 ] } MaterialBinding { value OVERALL } Cube {} }"));
  EXPECT_NEAR(figuresOf(overall.scene).areaByColor[kRed], 24, 1e-9);
}

TEST(LineSetBinding, PerPartIsPerSegmentAndPerFacePerLine) {
  struct Case {
    const char* binding;
    std::vector<Rgb> segmentColors;
  };
  // Two polylines: three points (two segments), then two points.
  const Case cases[] = {
      {"OVERALL", {kRed, kRed, kRed}},
      {"PER_PART", {kRed, kGreen, kBlue}},
      {"PER_PART_INDEXED", {kBlue, kGreen, kRed}},
      {"PER_FACE", {kRed, kRed, kGreen}},
      {"PER_FACE_INDEXED", {kBlue, kBlue, kGreen}},
  };
  for (const Case& c : cases) {
    const ExportRun run = exportText(plainScene(
        std::string("Separator { Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] } MaterialBinding { value ") +
        c.binding + " } Coordinate3 { point [ 0 0 0, 1 0 0, 2 0 0, 0 1 0, 1 1 0 ] }"
        " IndexedLineSet { coordIndex [ 0, 1, 2, -1, 3, 4 ] materialIndex [ 2, 1, 0 ] } }"));
    ASSERT_EQ(run.scene.meshes.size(), 1u) << c.binding;
    // Each segment's colour, found by its first point.
    std::map<std::pair<int, int>, Rgb> colorAt;
    for (const ExportPrimitive& p : run.scene.meshes[0].primitives) {
      EXPECT_EQ(p.mode, PrimitiveMode::kLines);
      const ExportMaterial& m = run.scene.materials[static_cast<size_t>(p.material)];
      EXPECT_TRUE(m.unlit);
      for (size_t s = 0; s + 1 < p.indices.size(); s += 2) {
        const float* a = &p.positions[p.indices[s] * 3];
        colorAt[{static_cast<int>(a[0]), static_cast<int>(a[1])}] =
            Rgb{{static_cast<int>(std::lround(m.diffuse[0] * 100)), static_cast<int>(std::lround(m.diffuse[1] * 100)),
                 static_cast<int>(std::lround(m.diffuse[2] * 100))}};
      }
    }
    EXPECT_EQ(colorAt[std::make_pair(0, 0)], c.segmentColors[0]) << c.binding;
    EXPECT_EQ(colorAt[std::make_pair(1, 0)], c.segmentColors[1]) << c.binding;
    EXPECT_EQ(colorAt[std::make_pair(0, 1)], c.segmentColors[2]) << c.binding;
  }
}

TEST(PointSetBinding, PerVertexStartsAtStartIndex) {
  const ExportRun run = exportText(plainScene(
      "Separator { Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] } MaterialBinding { value PER_VERTEX }"
      " Coordinate3 { point [ 0 0 0, 1 0 0, 2 0 0 ] } PointSet { startIndex 1 numPoints 2 } }"));
  ASSERT_EQ(run.scene.meshes.size(), 1u);
  const ExportPrimitive& p = run.scene.meshes[0].primitives[0];
  EXPECT_EQ(p.mode, PrimitiveMode::kPoints);
  ASSERT_EQ(p.vertexCount(), 2u);
  EXPECT_FLOAT_EQ(p.positions[0], 1);
  EXPECT_FLOAT_EQ(p.colors[1], 1);  // point 1 is green
  EXPECT_FLOAT_EQ(p.colors[6], 1);  // point 2 is blue
}

}  // namespace
}  // namespace lumeric
