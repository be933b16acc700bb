// The primitives' triangles, parts, tessellation and texture coordinates,
// and textures from files and inline images.  Expected figures follow from
// the shapes and the segment counts.
#include <gtest/gtest.h>

#include <cmath>

#include <stb/stb_image.h>

#include "export/ExportFixture.h"
#include "export/Primitives.h"
#include "export/Textures.h"

namespace lumeric {
namespace {

constexpr double kPi = 3.14159265358979323846;

ExportOptions tessellation(int segments) {
  ExportOptions options;
  options.tessellation = segments;
  return options;
}

TEST(Primitives, CubeIsAClosedBox) {
  const ExportRun run = exportText(plainScene("Cube { width 2 height 4 depth 6 }"));
  const Figures f = figuresOf(run.scene);
  EXPECT_EQ(f.triangles, 12);
  EXPECT_NEAR(f.area, 2 * (2 * 4 + 2 * 6 + 4 * 6), 1e-9);
  EXPECT_NEAR(f.volume, 48, 1e-9);
  EXPECT_EQ(f.high, (std::array<double, 3>{{1, 2, 3}}));
  EXPECT_FALSE(run.scene.materials[0].doubleSided);
}

TEST(Primitives, SphereOfEightSegmentsHasFourBands) {
  const ExportRun run = exportText(plainScene("Sphere { radius 2 }"), tessellation(8));
  const Figures f = figuresOf(run.scene);
  // Two bands of quads and two of triangles at the poles.
  EXPECT_EQ(f.triangles, 2 * 8 * 2 + 2 * 8);
  EXPECT_NEAR(f.high[1], 2, 1e-6);
  EXPECT_NEAR(f.low[1], -2, 1e-6);
  EXPECT_GT(f.volume, 0);
  EXPECT_LT(f.volume, 4 * kPi * 8 / 3);
}

TEST(Primitives, CylinderAndConePartsAndTheirSides) {
  const int n = 12;
  const double r = 1, h = 2;
  const double cap = n / 2.0 * r * r * std::sin(2 * kPi / n);
  const double sides = n * 2 * r * std::sin(kPi / n) * h;
  struct Case {
    const char* shape;
    double area;
    bool closed;
  };
  const Case cases[] = {
      {"Cylinder { parts ALL }", sides + 2 * cap, true},
      {"Cylinder { parts SIDES }", sides, false},
      {"Cylinder { parts ( TOP | BOTTOM ) }", 2 * cap, false},
      {"Cone { parts BOTTOM }", cap, false},
      // Each side triangle: a chord 2 r sin(pi/n) and the slant height to
      // its middle.
      {"Cone { parts ALL }", cap + n * r * std::sin(kPi / n) * std::sqrt(h * h + std::pow(r * std::cos(kPi / n), 2)),
       true},
  };
  for (const Case& c : cases) {
    const ExportRun run = exportText(plainScene(c.shape), tessellation(n));
    // Vertices are single precision.
    EXPECT_NEAR(figuresOf(run.scene).area, c.area, 1e-6 * c.area) << c.shape;
    ASSERT_EQ(run.scene.materials.size(), 1u) << c.shape;
    EXPECT_EQ(run.scene.materials[0].doubleSided, !c.closed) << c.shape;
  }
}

TEST(Primitives, ComplexityDecidesTheSegments) {
  EXPECT_EQ(segmentsFor(0.5f, 0), 24);
  EXPECT_EQ(segmentsFor(0.0f, 0), 4);
  EXPECT_EQ(segmentsFor(1.0f, 0), 44);
  EXPECT_EQ(segmentsFor(0.5f, 7), 7);
  EXPECT_EQ(segmentsFor(0.5f, 1), 3);
  // A Complexity the scene declares: four segments make a square prism.
  const ExportRun run = exportText(plainScene(
      "Separator { Complexity { fields [ SFFloat value ] value 0 } Cylinder { radius 1 height 2 } }"));
  EXPECT_NEAR(figuresOf(run.scene).volume, 4, 1e-9);
}

// The texture coordinates of the vertex at `position`.
std::array<float, 2> texCoordAt(const ExportScene& scene, std::array<float, 3> position) {
  for (const ExportMesh& mesh : scene.meshes) {
    for (const ExportPrimitive& p : mesh.primitives) {
      for (size_t v = 0; v < p.vertexCount(); ++v) {
        if (p.positions[v * 3] == position[0] && p.positions[v * 3 + 1] == position[1] &&
            p.positions[v * 3 + 2] == position[2] && !p.texCoords.empty()) {
          return {{p.texCoords[v * 2], p.texCoords[v * 2 + 1]}};
        }
      }
    }
  }
  return {{-99, -99}};
}

const char* kImage = "Texture2 { image 1 2 3 0xFF0000 0x00FF00 wrapS CLAMP }";

TEST(Textures, InlineImageBecomesPngWithTheTopRowFirst) {
  const ExportRun run = exportText(plainScene(std::string("Separator { ") + kImage + " Cube {} }"));
  ASSERT_EQ(run.scene.textures.size(), 1u);
  const ExportTexture& t = run.scene.textures[0];
  EXPECT_EQ(t.mimeType, "image/png");
  EXPECT_FALSE(t.repeatS);
  EXPECT_TRUE(t.repeatT);
  // The image's first pixel is its bottom left one: the PNG's top row is
  // the green pixel.
  int width = 0, height = 0, components = 0;
  unsigned char* pixels =
      stbi_load_from_memory(t.bytes.data(), static_cast<int>(t.bytes.size()), &width, &height, &components, 0);
  ASSERT_NE(pixels, nullptr);
  EXPECT_EQ(width, 1);
  EXPECT_EQ(height, 2);
  EXPECT_EQ(components, 3);
  EXPECT_EQ(std::vector<unsigned char>(pixels, pixels + 6), (std::vector<unsigned char>{0, 255, 0, 255, 0, 0}));
  stbi_image_free(pixels);
  EXPECT_EQ(run.scene.materials[0].texture, 0);
  // The cube's front face runs S along X and T along Y.
  EXPECT_EQ(texCoordAt(run.scene, {{-1, -1, 1}}), (std::array<float, 2>{{0, 0}}));
  EXPECT_EQ(texCoordAt(run.scene, {{1, 1, 1}}), (std::array<float, 2>{{1, 1}}));
  EXPECT_EQ(texCoordAt(run.scene, {{1, -1, -1}}), (std::array<float, 2>{{0, 0}}));  // the back face's start
}

TEST(Textures, PngFilesAreKeptByteForByteAndUnreadableOnesLeftOut) {
  ScratchDir dir;
  const std::vector<unsigned char> png = encodePng(2, 2, 4, std::vector<uint8_t>(16, 0x80));
  dir.write("tex/wood.png", std::string(png.begin(), png.end()));
  dir.write("tex/broken.png", "not an image");
  const ExportRun run = exportText(plainScene(
      "Separator { Texture2 { filename \"tex/wood.png\" } Cube {}"
      " Texture2 { filename \"tex/broken.png\" } Sphere {} Texture2 { } Cone {} }"), ExportOptions(), &dir);
  ASSERT_EQ(run.scene.textures.size(), 1u);
  EXPECT_EQ(run.scene.textures[0].bytes, png);
  EXPECT_EQ(run.scene.textures[0].name, "wood.png");
  EXPECT_EQ(run.messages, "Warning: Cannot read texture image " + dir.path() + "/tex/broken.png; left out\n");
  // The sphere and the cone are exported without texture.
  ASSERT_EQ(run.scene.meshes.size(), 3u);
  EXPECT_TRUE(run.scene.meshes[1].primitives[0].texCoords.empty());
  EXPECT_TRUE(run.scene.meshes[2].primitives[0].texCoords.empty());
}

TEST(Textures, FaceSetCoordinatesDefaultToTheBoxAndFollowTheTransform) {
  const std::string faces = " Coordinate3 { point [ 0 0 0, 4 0 0, 4 2 0, 0 2 0 ] }"
                            " IndexedFaceSet { coordIndex [ 0, 1, 2, 3 ] } }";
  // The box is 4 wide and 2 high: S runs along X from 0 to 1, T along Y
  // at the same scale.
  const ExportRun box = exportText(plainScene(std::string("Separator { ") + kImage + faces));
  EXPECT_EQ(texCoordAt(box.scene, {{4, 2, 0}}), (std::array<float, 2>{{1, 0.5f}}));
  // Texture2Transform: scale by 2 about the center (0.5, 0.5), then
  // translate by (0.25, 0).
  const ExportRun moved = exportText(plainScene(
      std::string("Separator { ") + kImage +
      " Texture2Transform { translation 0.25 0 scaleFactor 2 2 center 0.5 0.5 }" + faces));
  EXPECT_EQ(texCoordAt(moved.scene, {{4, 2, 0}}), (std::array<float, 2>{{1.75f, 0.5f}}));
  EXPECT_EQ(texCoordAt(moved.scene, {{0, 0, 0}}), (std::array<float, 2>{{-0.25f, -0.5f}}));
  // Given coordinates, by textureCoordIndex.
  const ExportRun given = exportText(plainScene(
      std::string("Separator { ") + kImage + " TextureCoordinate2 { point [ 0 0, 0.5 0, 0.5 0.5 ] }"
      " Coordinate3 { point [ 0 0 0, 4 0 0, 4 2 0 ] }"
      " IndexedFaceSet { coordIndex [ 0, 1, 2 ] textureCoordIndex [ 2, 1, 0 ] } }"));
  EXPECT_EQ(texCoordAt(given.scene, {{0, 0, 0}}), (std::array<float, 2>{{0.5f, 0.5f}}));
  EXPECT_EQ(texCoordAt(given.scene, {{4, 2, 0}}), (std::array<float, 2>{{0, 0}}));
}

}  // namespace
}  // namespace lumeric
