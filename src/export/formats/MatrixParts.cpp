#include "export/formats/MatrixParts.h"

#include <cmath>

namespace lumeric {

namespace {

using Vector3 = std::array<double, 3>;

// Relative tolerance under which a matrix counts as exact: float input
// composed in double stays far below it; a real shear is far above it.
constexpr double kTolerance = 1e-6;

Vector3 column(const Matrix4& m, int c) { return {{m[c * 4], m[c * 4 + 1], m[c * 4 + 2]}}; }
double dot(const Vector3& a, const Vector3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
double length(const Vector3& a) { return std::sqrt(dot(a, a)); }
Vector3 scaled(const Vector3& a, double s) { return {{a[0] * s, a[1] * s, a[2] * s}}; }
Vector3 cross(const Vector3& a, const Vector3& b) {
  return {{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]}};
}

// The quaternion of a rotation matrix given by its orthonormal columns.
std::array<double, 4> quaternionOf(const Vector3& x, const Vector3& y, const Vector3& z) {
  // r[row][col]
  const double r00 = x[0], r10 = x[1], r20 = x[2];
  const double r01 = y[0], r11 = y[1], r21 = y[2];
  const double r02 = z[0], r12 = z[1], r22 = z[2];
  std::array<double, 4> q;
  const double trace = r00 + r11 + r22;
  if (trace > 0) {
    const double s = 2 * std::sqrt(trace + 1);
    q = {{(r21 - r12) / s, (r02 - r20) / s, (r10 - r01) / s, s / 4}};
  } else if (r00 > r11 && r00 > r22) {
    const double s = 2 * std::sqrt(1 + r00 - r11 - r22);
    q = {{s / 4, (r01 + r10) / s, (r02 + r20) / s, (r21 - r12) / s}};
  } else if (r11 > r22) {
    const double s = 2 * std::sqrt(1 + r11 - r00 - r22);
    q = {{(r01 + r10) / s, s / 4, (r12 + r21) / s, (r02 - r20) / s}};
  } else {
    const double s = 2 * std::sqrt(1 + r22 - r00 - r11);
    q = {{(r02 + r20) / s, (r12 + r21) / s, s / 4, (r10 - r01) / s}};
  }
  const double norm = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
  for (double& v : q) v /= norm;
  if (q[3] < 0) {
    for (double& v : q) v = -v;
  }
  return q;
}

}  // namespace

bool decomposeMatrix(const Matrix4& m, MatrixParts& parts) {
  for (int c = 0; c < 4; ++c) {
    if (!std::isfinite(m[c * 4]) || !std::isfinite(m[c * 4 + 1]) || !std::isfinite(m[c * 4 + 2]) ||
        !std::isfinite(m[c * 4 + 3])) {
      return false;
    }
  }
  if (m[3] != 0 || m[7] != 0 || m[11] != 0 || m[15] != 1) return false;
  Vector3 columns[3] = {column(m, 0), column(m, 1), column(m, 2)};
  double lengths[3];
  for (int i = 0; i < 3; ++i) {
    lengths[i] = length(columns[i]);
    if (!(lengths[i] > 0)) return false;
  }
  for (int i = 0; i < 3; ++i) {
    for (int j = i + 1; j < 3; ++j) {
      if (std::fabs(dot(columns[i], columns[j])) > kTolerance * lengths[i] * lengths[j]) return false;
    }
  }
  if (determinant3(m) < 0) lengths[0] = -lengths[0];
  Vector3 unit[3];
  for (int i = 0; i < 3; ++i) unit[i] = scaled(columns[i], 1 / lengths[i]);
  parts.translation = {{m[12], m[13], m[14]}};
  parts.rotation = quaternionOf(unit[0], unit[1], unit[2]);
  parts.scale = {{lengths[0], lengths[1], lengths[2]}};
  return true;
}

MatrixParts rigidParts(const Matrix4& m) {
  MatrixParts parts;
  for (int i = 0; i < 3; ++i) parts.translation[i] = std::isfinite(m[12 + i]) ? m[12 + i] : 0;
  Vector3 z = column(m, 2);
  Vector3 y = column(m, 1);
  const double zLength = length(z);
  if (!(zLength > 0) || !std::isfinite(zLength)) return parts;
  z = scaled(z, 1 / zLength);
  y = {{y[0] - z[0] * dot(y, z), y[1] - z[1] * dot(y, z), y[2] - z[2] * dot(y, z)}};
  double yLength = length(y);
  if (!(yLength > 1e-12) || !std::isfinite(yLength)) {
    // Up is lost: any direction across the view will do.
    y = std::fabs(z[1]) < 0.9 ? Vector3{{0, 1, 0}} : Vector3{{1, 0, 0}};
    y = {{y[0] - z[0] * dot(y, z), y[1] - z[1] * dot(y, z), y[2] - z[2] * dot(y, z)}};
    yLength = length(y);
  }
  y = scaled(y, 1 / yLength);
  parts.rotation = quaternionOf(cross(y, z), y, z);
  return parts;
}

std::array<double, 4> axisAngle(const std::array<double, 4>& q) {
  const double sine = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2]);
  if (sine < 1e-12) return {{0, 0, 1, 0}};
  const double angle = 2 * std::atan2(sine, q[3]);
  return {{q[0] / sine, q[1] / sine, q[2] / sine, angle}};
}

}  // namespace lumeric
