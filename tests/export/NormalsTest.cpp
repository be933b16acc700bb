// Generated normals: smooth across an edge whose angle is below the crease
// angle, hard above it; given normals used as their binding says.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "export/ExportFixture.h"
#include "export/Normals.h"

namespace lumeric {
namespace {

// Two unit squares hinged along the X axis: one in the plane z = 0, the
// other turned up by 0.6 radians.  Their normals are 0.6 apart (the
// translation's six digits keep them within 1e-5 of it).
std::string hinge(double creaseAngle) {
  const double c = std::cos(0.6), s = std::sin(0.6);
  char text[600];
  std::snprintf(text, sizeof text,
                "Separator { ShapeHints { creaseAngle %g }"
                " Coordinate3 { point [ 0 -1 0, 1 -1 0, 1 0 0, 0 0 0, 1 %g %g, 0 %g %g ] }"
                " IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 3, 2, 4, 5, -1 ] } }",
                creaseAngle, c, s, c, s);
  return plainScene(text);
}

// The normals at the corner (1, 0, 0), one per vertex there.
std::vector<std::array<float, 3>> normalsAtHinge(const ExportScene& scene) {
  std::vector<std::array<float, 3>> normals;
  for (const ExportPrimitive& p : scene.meshes.at(0).primitives) {
    for (size_t v = 0; v < p.vertexCount(); ++v) {
      if (p.positions[v * 3] == 1 && p.positions[v * 3 + 1] == 0 && p.positions[v * 3 + 2] == 0) {
        normals.push_back({{p.normals[v * 3], p.normals[v * 3 + 1], p.normals[v * 3 + 2]}});
      }
    }
  }
  return normals;
}

TEST(GeneratedNormals, SmoothBelowTheCreaseAngle) {
  const ExportRun run = exportText(hinge(0.7));
  const auto normals = normalsAtHinge(run.scene);
  // One vertex, the mean of both faces' normals: turned by 0.3 from +Z.
  ASSERT_EQ(normals.size(), 1u);
  EXPECT_NEAR(normals[0][0], 0, 1e-4);
  EXPECT_NEAR(normals[0][1], -std::sin(0.3), 1e-4);
  EXPECT_NEAR(normals[0][2], std::cos(0.3), 1e-4);
}

TEST(GeneratedNormals, HardAboveTheCreaseAngle) {
  const ExportRun run = exportText(hinge(0.5));
  const auto normals = normalsAtHinge(run.scene);
  // Two vertices, each with its own face's normal.
  ASSERT_EQ(normals.size(), 2u);
  std::vector<float> zs{normals[0][2], normals[1][2]};
  std::sort(zs.begin(), zs.end());
  EXPECT_NEAR(zs[0], std::cos(0.6), 1e-4);
  EXPECT_NEAR(zs[1], 1, 1e-4);
}

TEST(GeneratedNormals, CreaseNormalsOfSharedPoints) {
  // Three faces around point 0: two coplanar, one at right angles.
  const std::vector<std::vector<int>> faces{{0, 1, 2}, {0, 2, 3}, {0, 3, 4}};
  const std::vector<Point3> normals{{{0, 0, 1}}, {{0, 0, 1}}, {{1, 0, 0}}};
  const std::vector<Point3> corners = creaseNormals(faces, normals, 0.5);
  ASSERT_EQ(corners.size(), 9u);
  EXPECT_EQ(corners[0], (Point3{{0, 0, 1}}));
  EXPECT_EQ(corners[6], (Point3{{1, 0, 0}}));
  const std::vector<Point3> smooth = creaseNormals(faces, normals, 2.0);
  // Point 0 is shared by all three: (0, 0, 2) + (1, 0, 0) normalized.
  EXPECT_NEAR(smooth[0][0], 1 / std::sqrt(5.0), 1e-12);
  EXPECT_NEAR(smooth[0][2], 2 / std::sqrt(5.0), 1e-12);
  // Point 2 is shared by the two coplanar faces only.
  EXPECT_EQ(smooth[2], (Point3{{0, 0, 1}}));
}

TEST(GivenNormals, FollowTheirBinding) {
  struct Case {
    const char* binding;
    const char* normalIndex;
    std::array<float, 6> z;  // the normal's z at each of the six points
  };
  // Three normals: up, down, down.  An index beyond them gives the face's
  // own normal, up here.
  const Case cases[] = {
      {"OVERALL", "-1", {{1, 1, 1, 1, 1, 1}}},
      {"PER_FACE", "-1", {{1, 1, 1, -1, -1, -1}}},
      {"PER_PART_INDEXED", "1, 0", {{-1, -1, -1, 1, 1, 1}}},
      {"PER_FACE_INDEXED", "1, 0", {{-1, -1, -1, 1, 1, 1}}},
      {"PER_VERTEX", "-1", {{1, -1, -1, 1, 1, 1}}},
      {"PER_VERTEX_INDEXED", "1, 1, 1, -1, 0, 0, 0, -1", {{-1, -1, -1, 1, 1, 1}}},
      {"DEFAULT", "-1", {{1, -1, -1, 1, 1, 1}}},  // indexed by the coordinates
  };
  for (const Case& c : cases) {
    const ExportRun run = exportText(plainScene(
        std::string("Separator { Normal { vector [ 0 0 1, 0 0 -1, 0 0 -1 ] } NormalBinding { value ") + c.binding +
        " } Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 5 0 0, 6 0 0, 6 1 0 ] }"
        " IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 3, 4, 5, -1 ] normalIndex [ " + c.normalIndex + " ] } }"));
    ASSERT_EQ(run.scene.meshes.size(), 1u) << c.binding;
    const ExportPrimitive& p = run.scene.meshes[0].primitives[0];
    ASSERT_EQ(p.vertexCount(), 6u) << c.binding;
    for (size_t v = 0; v < p.vertexCount(); ++v) {
      const float x = p.positions[v * 3], y = p.positions[v * 3 + 1];
      const int point = (x < 3 ? 0 : 3) + (y > 0 ? 2 : (x == 0 || x == 5 ? 0 : 1));
      EXPECT_FLOAT_EQ(p.normals[v * 3 + 2], c.z[static_cast<size_t>(point)]) << c.binding << " point " << point;
    }
  }
}

}  // namespace
}  // namespace lumeric
