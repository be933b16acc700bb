#include "export/Matrices.h"

#include <cmath>

namespace lumeric {

Matrix4 identityMatrix() { return Matrix4{{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}; }

Matrix4 multiply(const Matrix4& a, const Matrix4& b) {
  Matrix4 product{};
  for (int col = 0; col < 4; ++col) {
    for (int row = 0; row < 4; ++row) {
      double sum = 0;
      for (int k = 0; k < 4; ++k) sum += a[k * 4 + row] * b[col * 4 + k];
      product[col * 4 + row] = sum;
    }
  }
  return product;
}

double determinant3(const Matrix4& m) {
  auto at = [&](int row, int col) { return m[col * 4 + row]; };
  return at(0, 0) * (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1)) -
         at(0, 1) * (at(1, 0) * at(2, 2) - at(1, 2) * at(2, 0)) +
         at(0, 2) * (at(1, 0) * at(2, 1) - at(1, 1) * at(2, 0));
}

Matrix4 translationMatrix(const Vec3& t) {
  Matrix4 m = identityMatrix();
  m[12] = t[0];
  m[13] = t[1];
  m[14] = t[2];
  return m;
}

Matrix4 scaleMatrix(const Vec3& s) {
  Matrix4 m = identityMatrix();
  m[0] = s[0];
  m[5] = s[1];
  m[10] = s[2];
  return m;
}

Matrix4 rotationMatrix(const Vec3& axis, double angle) {
  double length = std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2]);
  if (!(length > 0) || !std::isfinite(length)) return identityMatrix();
  double x = axis[0] / length, y = axis[1] / length, z = axis[2] / length;
  double c = std::cos(angle), s = std::sin(angle), t = 1 - c;
  Matrix4 m = identityMatrix();
  m[0] = t * x * x + c;
  m[1] = t * x * y + s * z;
  m[2] = t * x * z - s * y;
  m[4] = t * x * y - s * z;
  m[5] = t * y * y + c;
  m[6] = t * y * z + s * x;
  m[8] = t * x * z + s * y;
  m[9] = t * y * z - s * x;
  m[10] = t * z * z + c;
  return m;
}

Matrix4 rotationFromMinusZ(const Vec3& direction) {
  double length = std::sqrt(direction[0] * direction[0] + direction[1] * direction[1] + direction[2] * direction[2]);
  if (!(length > 0) || !std::isfinite(length)) return identityMatrix();
  Vec3 d{{direction[0] / length, direction[1] / length, direction[2] / length}};
  // -Z x d is the axis; -Z . d the cosine.
  Vec3 axis{{d[1], -d[0], 0}};
  double cosine = -d[2];
  double sine = std::sqrt(axis[0] * axis[0] + axis[1] * axis[1]);
  if (sine < 1e-12) return cosine > 0 ? identityMatrix() : rotationMatrix(Vec3{{0, 1, 0}}, M_PI);
  return rotationMatrix(axis, std::atan2(sine, cosine));
}

Matrix4 matrixFromRowVectorOrder(const double (&numbers)[16]) {
  // Row-vector matrices are the transposes of column-vector ones, and the
  // transposed matrix read row by row is the column-major layout.
  Matrix4 m{};
  for (int k = 0; k < 16; ++k) m[k] = numbers[k];
  return m;
}

Vec3 transformPoint(const Matrix4& m, const Vec3& p) {
  Vec3 out{};
  for (int row = 0; row < 3; ++row) out[row] = m[row] * p[0] + m[4 + row] * p[1] + m[8 + row] * p[2] + m[12 + row];
  return out;
}

}  // namespace lumeric
