// The wall mesh: points and faces in creation order, closed rings, the
// thickening with its shifted points, and the mitre at corners.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/RunState.h"
#include "nodes/generators/WallMesh.h"

namespace lumeric {
namespace {

// A mesh along `path` (x, z pairs) of height 1 at elevation 0.
void buildAlong(WallMesh& mesh, const std::vector<double>& path) {
  mesh.build(path.data(), static_cast<int>(path.size() / 2), 2, RepeatedNumbers{}, RepeatedNumbers{});
}

double horizontalDistance(const WallPoint& a, const WallPoint& b) { return std::hypot(a.x - b.x, a.z - b.z); }

// The distance of `p` from the line through a and b, in the ground plane.
double distanceFromLine(const WallPoint& p, const WallPoint& a, const WallPoint& b) {
  double dx = b.x - a.x;
  double dz = b.z - a.z;
  return std::fabs((p.x - a.x) * dz - (p.z - a.z) * dx) / std::hypot(dx, dz);
}

TEST(WallMesh, ClosedPathDropsItsLastPointAndLinksTheRing) {
  WallMesh mesh;
  buildAlong(mesh, {0, 0, 1, 0, 1, 1, 0, 0});
  ASSERT_EQ(mesh.points().size(), 6u);
  ASSERT_EQ(mesh.faces().size(), 3u);
  const WallFace& closing = mesh.faces().back();
  EXPECT_EQ(closing.corners[0], &mesh.points()[4]);
  EXPECT_EQ(closing.corners[1], &mesh.points()[0]);
  EXPECT_EQ(mesh.points()[0].previous, &mesh.points()[4]);
  EXPECT_EQ(mesh.points()[5].next, &mesh.points()[1]);
}

TEST(WallMesh, ShortListsRepeatTheirLastNumber) {
  const double path[] = {0, 0, 1, 0, 2, 0, 3, 0};
  const double heights[] = {1, 3};
  const double elevations[] = {2};
  WallMesh mesh;
  mesh.build(path, 4, 2, RepeatedNumbers{heights, 2}, RepeatedNumbers{elevations, 1});
  std::vector<double> tops;
  for (size_t i = 1; i < mesh.points().size(); i += 2) tops.push_back(mesh.points()[i].y);
  EXPECT_EQ(tops, (std::vector<double>{3, 5, 5, 5}));
}

// A right angle on either side: the shifted corner lies width * sqrt(2)
// from the path corner and width from both faces that meet there.
TEST(WallMesh, RightAngleCornersAreMitred) {
  for (double placement : {1.0, -1.0}) {
    WallMesh mesh;
    buildAlong(mesh, {0, 0, 2, 0, 2, 2});
    mesh.thicken(placement, 0.25);
    const WallPoint& corner = mesh.points()[2];
    ASSERT_NE(corner.partner, nullptr);
    const WallPoint& shifted = *corner.partner;
    EXPECT_NEAR(horizontalDistance(corner, shifted), 0.25 * std::sqrt(2.0), 1e-12) << placement;
    EXPECT_NEAR(distanceFromLine(shifted, mesh.points()[0], corner), 0.25, 1e-12) << placement;
    EXPECT_NEAR(distanceFromLine(shifted, corner, mesh.points()[4]), 0.25, 1e-12) << placement;
    EXPECT_EQ(shifted.partner, &corner);
  }
}

// A bend of 60 degrees keeps the width too; the ends of the path are
// shifted straight sideways by the width.
TEST(WallMesh, AnyBendKeepsTheWidthFromBothFaces) {
  WallMesh mesh;
  buildAlong(mesh, {0, 0, 1, 0, 1 + 0.5, std::sqrt(3.0) / 2});
  mesh.thicken(1, 0.1);
  const auto& points = mesh.points();
  EXPECT_NEAR(distanceFromLine(*points[2].partner, points[0], points[2]), 0.1, 1e-12);
  EXPECT_NEAR(distanceFromLine(*points[2].partner, points[2], points[4]), 0.1, 1e-12);
  EXPECT_NEAR(horizontalDistance(points[0], *points[0].partner), 0.1, 1e-12);
  EXPECT_NEAR(horizontalDistance(points[4], *points[4].partner), 0.1, 1e-12);
}

// A path that turns straight back: the two normals cancel and the
// projection falls below the PRECISION step, so the width is not divided.
TEST(WallMesh, ReversalUsesThePlainWidth) {
  WallMesh mesh;
  buildAlong(mesh, {0, 0, 1, 0, 0, 0.000001});
  double saved = precisionQuantum;
  precisionQuantum = 0.0001;
  mesh.thicken(1, 0.1);
  precisionQuantum = saved;
  const WallPoint& corner = mesh.points()[2];
  EXPECT_LE(horizontalDistance(corner, *corner.partner), 0.1 + 1e-12);
  EXPECT_TRUE(std::isfinite(corner.partner->x) && std::isfinite(corner.partner->z));
}

TEST(WallMesh, ThickeningAddsFourPointsAndFiveFacesPerFace) {
  WallMesh mesh;
  buildAlong(mesh, {0, 0, 1, 0, 1, 1, 0, 1, 0, 0});
  mesh.thicken(0, 0.1);
  EXPECT_EQ(mesh.faces().size(), 4u);
  mesh.thicken(-1, 0.1);
  EXPECT_EQ(mesh.points().size(), 8u + 16u);
  EXPECT_EQ(mesh.faces().size(), 4u * 6u);
  // The twin of the first face turns the other way round.
  const WallFace& twin = mesh.faces()[4];
  EXPECT_EQ(twin.corners[0]->partner, mesh.faces()[0].corners[1]);
  EXPECT_EQ(twin.corners[1]->partner, mesh.faces()[0].corners[0]);
}

TEST(WallMesh, SideNormalPointsLeftOfTheDirectionTimesTheSide) {
  WallPoint from;
  WallPoint towardsX;
  towardsX.x = 3;
  double normal[2];
  sideNormal(from, towardsX, 1, normal);
  EXPECT_EQ(normal[0], 0);
  EXPECT_EQ(normal[1], 1);
  sideNormal(from, from, -1, normal);
  EXPECT_EQ(normal[0], 1);
  EXPECT_EQ(normal[1], 0);
}

}  // namespace
}  // namespace lumeric
