// Taking matrices apart for X3D's Transform and for cameras and lights, and
// placing normals.
#include <gtest/gtest.h>

#include <cmath>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/MatrixParts.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {
namespace {

// The matrix translation * rotation(quaternion) * scale.
Matrix4 compose(const MatrixParts& parts) {
  const auto& q = parts.rotation;
  const double x = q[0], y = q[1], z = q[2], w = q[3];
  const double r[3][3] = {{1 - 2 * (y * y + z * z), 2 * (x * y - z * w), 2 * (x * z + y * w)},
                          {2 * (x * y + z * w), 1 - 2 * (x * x + z * z), 2 * (y * z - x * w)},
                          {2 * (x * z - y * w), 2 * (y * z + x * w), 1 - 2 * (x * x + y * y)}};
  Matrix4 m = identityMatrix();
  for (int col = 0; col < 3; ++col) {
    for (int row = 0; row < 3; ++row) m[col * 4 + row] = r[row][col] * parts.scale[col];
    m[12 + col] = parts.translation[col];
  }
  return m;
}

Matrix4 rotationX(double angle) {
  Matrix4 m = identityMatrix();
  m[5] = std::cos(angle);
  m[6] = std::sin(angle);
  m[9] = -std::sin(angle);
  m[10] = std::cos(angle);
  return m;
}

TEST(MatrixPartsTest, ExactMatricesComposeBack) {
  const Matrix4 matrices[] = {
      identityMatrix(),
      translation(1, -2, 3),
      multiply(translation(1, 2, 3), multiply(rotationZ(2.5), scaling(2, 3, 4))),
      multiply(rotationX(3.14159), rotationZ(-1)),  // near a half turn
      multiply(rotationX(1), scaling(-1, 2, 2)),    // a mirror
      scaling(-1, -1, -1),
  };
  for (const Matrix4& m : matrices) {
    MatrixParts parts;
    ASSERT_TRUE(decomposeMatrix(m, parts));
    const Matrix4 back = compose(parts);
    for (int i = 0; i < 16; ++i) EXPECT_NEAR(back[i], m[i], 1e-9) << "element " << i;
    EXPECT_NEAR(std::hypot(std::hypot(parts.rotation[0], parts.rotation[1]), std::hypot(parts.rotation[2], parts.rotation[3])),
                1, 1e-12);
  }
}

TEST(MatrixPartsTest, ShearProjectionAndFlatMatricesAreRefused) {
  Matrix4 shear = identityMatrix();
  shear[4] = 0.1;
  Matrix4 projection = identityMatrix();
  projection[3] = 0.5;
  // Non-uniform scale after a rotation shears.
  const Matrix4 refused[] = {shear, projection, scaling(1, 0, 1), multiply(scaling(1, 2, 1), rotationZ(0.3))};
  for (const Matrix4& m : refused) {
    MatrixParts parts;
    EXPECT_FALSE(decomposeMatrix(m, parts));
  }
}

TEST(MatrixPartsTest, RigidPartsKeepWhereTheViewLooksAndWhereUpIs) {
  Matrix4 m = multiply(translation(1, 2, 3), multiply(rotationX(0.4), scaling(3, 0.5, 2)));
  m[4] += 0.3;  // a shear too
  const MatrixParts parts = rigidParts(m);
  EXPECT_EQ(parts.scale, (std::array<double, 3>{{1, 1, 1}}));
  EXPECT_EQ(parts.translation, (std::array<double, 3>{{1, 2, 3}}));
  const Matrix4 rigid = compose(parts);
  // -Z of the rigid placement is along the matrix's -Z column.
  const double zLength = std::sqrt(m[8] * m[8] + m[9] * m[9] + m[10] * m[10]);
  for (int k = 0; k < 3; ++k) EXPECT_NEAR(rigid[8 + k], m[8 + k] / zLength, 1e-9);
  // Up stays on the side of the matrix's Y.
  EXPECT_GT(rigid[4] * m[4] + rigid[5] * m[5] + rigid[6] * m[6], 0);
  EXPECT_NEAR(determinant3(rigid), 1, 1e-9);
}

TEST(MatrixPartsTest, AxisAngleOfQuaternions) {
  EXPECT_EQ(axisAngle({{0, 0, 0, 1}}), (std::array<double, 4>{{0, 0, 1, 0}}));
  const std::array<double, 4> quarter = axisAngle({{0, std::sin(0.25), 0, std::cos(0.25)}});
  EXPECT_NEAR(quarter[1], 1, 1e-12);
  EXPECT_NEAR(quarter[3], 0.5, 1e-12);
}

TEST(WorldPlacementTest, NormalsStayPerpendicularAndMirrorsAreFound) {
  // A plane through the origin, spanned by two edges, with its normal.
  const float edgeA[3] = {1, 1, 0}, edgeB[3] = {0, 1, 1};
  const float normal[3] = {1, -1, 1};
  const Matrix4 placements[] = {scaling(5, 1, 0.2), multiply(rotationZ(1), scaling(-1, 3, 1)), scaling(-2, -2, -2)};
  const bool mirrors[] = {false, true, true};
  for (size_t i = 0; i < 3; ++i) {
    WorldPlacement place(placements[i]);
    EXPECT_EQ(place.mirrored(), mirrors[i]);
    const std::array<float, 3> n = place.normal(normal);
    const std::array<double, 3> a = place.point(edgeA), b = place.point(edgeB);
    EXPECT_NEAR(n[0] * a[0] + n[1] * a[1] + n[2] * a[2], 0, 1e-5);
    EXPECT_NEAR(n[0] * b[0] + n[1] * b[1] + n[2] * b[2], 0, 1e-5);
    // The normal keeps the side of the face that the edges' winding gives.
    const double cross[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    const double side = cross[0] * n[0] + cross[1] * n[1] + cross[2] * n[2];
    EXPECT_EQ(side > 0, !mirrors[i]) << "placement " << i;
  }
}

}  // namespace
}  // namespace lumeric
