// Polygons into triangles: concave outlines through the tessellator, the
// fan for convex ones, and faces a viewer cannot draw.
#include <gtest/gtest.h>

#include <cmath>

#include "export/ExportFixture.h"
#include "export/FaceSets.h"
#include "export/Tessellator.h"

namespace lumeric {
namespace {

struct Areas {
  double signedSum = 0;  // about +Z
  double absoluteSum = 0;
};

Areas areasOf(const std::vector<Point3>& points, const std::vector<Triangle>& triangles) {
  Areas a;
  for (const Triangle& t : triangles) {
    const Point3& p = points[static_cast<size_t>(t[0])];
    const Point3& q = points[static_cast<size_t>(t[1])];
    const Point3& r = points[static_cast<size_t>(t[2])];
    const double z = ((q[0] - p[0]) * (r[1] - p[1]) - (q[1] - p[1]) * (r[0] - p[0])) / 2;
    a.signedSum += z;
    a.absoluteSum += std::fabs(z);
  }
  return a;
}

std::vector<Point3> outline(std::initializer_list<std::pair<double, double>> xy) {
  std::vector<Point3> points;
  for (const auto& p : xy) points.push_back({{p.first, p.second, 0}});
  return points;
}

struct PolygonCase {
  const char* name;
  std::vector<Point3> points;
  double area;
};

const PolygonCase kConcave[] = {
    // An L of three unit squares, starting at the corner from which a fan
    // would leave the outline.
    {"RightAngleL", outline({{2, 1}, {1, 1}, {1, 2}, {0, 2}, {0, 0}, {2, 0}}), 3},
    // A chevron whose first corner is its reflex vertex (2, 1).
    {"ReflexVertexFirst", outline({{2, 1}, {0, 4}, {0, 0}, {4, 0}, {4, 4}}), 10},
    // The same wound clockwise: triangles still follow the outline's normal.
    {"Clockwise", outline({{2, 1}, {4, 4}, {4, 0}, {0, 0}, {0, 4}}), -10},
    // A comb: three teeth.
    {"Comb", outline({{0, 0}, {5, 0}, {5, 2}, {4, 2}, {4, 1}, {3, 1}, {3, 2}, {2, 2}, {2, 1}, {1, 1}, {1, 2}, {0, 2}}),
     8},
};

class ConcavePolygons : public ::testing::TestWithParam<PolygonCase> {};

TEST_P(ConcavePolygons, CoverTheOutlineExactlyOnce) {
  const PolygonCase& c = GetParam();
  const Point3 normal = polygonNormal(c.points);
  EXPECT_NEAR(normal[2] / 2, c.area, 1e-12);
  const std::vector<Triangle> triangles = triangulate(c.points, normal, false);
  const Areas a = areasOf(c.points, triangles);
  EXPECT_NEAR(a.signedSum, c.area, 1e-9);
  // No triangle turned against the others: nothing outside the outline.
  EXPECT_NEAR(a.absoluteSum, std::fabs(c.area), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Export, ConcavePolygons, ::testing::ValuesIn(kConcave),
                         [](const ::testing::TestParamInfo<PolygonCase>& tested) { return tested.param.name; });

TEST(ConvexPolygons, AreFannedFromTheFirstCorner) {
  const std::vector<Point3> hexagon = outline({{1, 0}, {2, 0}, {3, 1}, {2, 2}, {1, 2}, {0, 1}});
  const std::vector<Triangle> triangles = triangulate(hexagon, polygonNormal(hexagon), true);
  ASSERT_EQ(triangles.size(), 4u);
  for (size_t i = 0; i < triangles.size(); ++i) {
    EXPECT_EQ(triangles[i], (Triangle{{0, static_cast<int>(i) + 1, static_cast<int>(i) + 2}}));
  }
  EXPECT_NEAR(areasOf(hexagon, triangles).signedSum, 4, 1e-12);
}

TEST(ConvexPolygons, TrianglesWithoutAreaAreLeftOut) {
  // A square with a repeated corner and a corner on an edge.
  const std::vector<Point3> square = outline({{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0.5, 1}, {0, 1}});
  const std::vector<Triangle> triangles = triangulate(square, polygonNormal(square), true);
  EXPECT_EQ(triangles.size(), 3u);
  EXPECT_NEAR(areasOf(square, triangles).signedSum, 1, 1e-12);
}

TEST(FaceSetTessellation, UnknownFaceTypeTessellatesAndConvexFans) {
  const char* l = "Coordinate3 { point [ 2 1 0, 1 1 0, 1 2 0, 0 2 0, 0 0 0, 2 0 0 ] }"
                  " IndexedFaceSet { coordIndex [ 0, 1, 2, 3, 4, 5, -1 ] }";
  const ExportRun tessellated =
      exportText(plainScene(std::string("Separator { ShapeHints { faceType UNKNOWN_FACE_TYPE } ") + l + " }"));
  EXPECT_NEAR(figuresOf(tessellated.scene).area, 3, 1e-9);
  // The fan a viewer draws for a face said to be convex folds over.
  const ExportRun fanned = exportText(plainScene(std::string("Separator { ") + l + " }"));
  EXPECT_GT(figuresOf(fanned.scene).area, 3.1);
}

TEST(FaceSetTessellation, BadFacesAreCountedAndSkipped) {
  const ExportRun run = exportText(plainScene(
      "Separator { Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 2 0 0 ] }"
      " IndexedFaceSet { coordIndex [ 0, 0, 1, -1,  0, 1, 9, -1,  0, 1, 2, 3, -1,  1, 1, 1, 1, -1,"
      "  0, 1, 4, -1,  2, 3, 0, -1 ] } }"));
  EXPECT_EQ(run.messages,
            std::string("Warning: ") + kIndexOutOfRange + "\nWarning: " + kDegenerateFace + " (3 times)\n");
  // The square and the last triangle remain: faces after bad ones count.
  const Figures f = figuresOf(run.scene);
  EXPECT_EQ(f.triangles, 3);
  EXPECT_NEAR(f.area, 1.5, 1e-12);
}

TEST(FaceSetTessellation, ClockwiseFacesComeOutCounterClockwise) {
  for (const char* ordering : {"CLOCKWISE", "COUNTERCLOCKWISE", "UNKNOWN_ORDERING"}) {
    // The square is listed clockwise seen from +Z.
    const ExportRun run = exportText(plainScene(
        std::string("Separator { ShapeHints { vertexOrdering ") + ordering + " shapeType SOLID }"
        " Coordinate3 { point [ 0 0 0, 0 1 0, 1 1 0, 1 0 0 ] } IndexedFaceSet { coordIndex [ 0, 1, 2, 3 ] } }"));
    ASSERT_EQ(run.scene.meshes.size(), 1u);
    const ExportPrimitive& p = run.scene.meshes[0].primitives[0];
    const float* a = &p.positions[p.indices[0] * 3];
    const float* b = &p.positions[p.indices[1] * 3];
    const float* c = &p.positions[p.indices[2] * 3];
    const float z = (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
    const bool clockwise = ordering == std::string("CLOCKWISE");
    EXPECT_EQ(z > 0, clockwise) << ordering;
    // The generated normal agrees with the winding.
    EXPECT_EQ(p.normals[2] > 0, clockwise) << ordering;
    // Only a solid of known ordering is seen from one side.
    const bool known = ordering != std::string("UNKNOWN_ORDERING");
    EXPECT_EQ(run.scene.materials[static_cast<size_t>(p.material)].doubleSided, !known) << ordering;
  }
}

}  // namespace
}  // namespace lumeric
