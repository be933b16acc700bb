#include "export/formats/WorldPlacement.h"

#include <cmath>

namespace lumeric {

WorldPlacement::WorldPlacement(const Matrix4& matrix) : matrix_(matrix) {
  const Matrix4& m = matrix;
  // a(row, col) of the 3x3 part.
  auto a = [&m](int row, int col) { return m[col * 4 + row]; };
  const double sign = determinant3(m) < 0 ? -1.0 : 1.0;
  mirrored_ = sign < 0;
  // Row-major cofactor matrix: cof(r, c) = a(r+1, c+1) a(r+2, c+2) - a(r+1, c+2) a(r+2, c+1).
  for (int r = 0; r < 3; ++r) {
    for (int c = 0; c < 3; ++c) {
      const int r1 = (r + 1) % 3, r2 = (r + 2) % 3, c1 = (c + 1) % 3, c2 = (c + 2) % 3;
      normalMatrix_[r * 3 + c] = sign * (a(r1, c1) * a(r2, c2) - a(r1, c2) * a(r2, c1));
    }
  }
}

std::array<double, 3> WorldPlacement::point(const float* p) const {
  const Matrix4& m = matrix_;
  std::array<double, 3> out;
  for (int row = 0; row < 3; ++row) {
    out[row] = m[row] * p[0] + m[4 + row] * p[1] + m[8 + row] * p[2] + m[12 + row];
  }
  return out;
}

std::array<float, 3> WorldPlacement::normal(const float* n) const {
  double out[3];
  for (int row = 0; row < 3; ++row) {
    out[row] = normalMatrix_[row * 3] * n[0] + normalMatrix_[row * 3 + 1] * n[1] + normalMatrix_[row * 3 + 2] * n[2];
  }
  const double length = std::sqrt(out[0] * out[0] + out[1] * out[1] + out[2] * out[2]);
  if (!(length > 0) || !std::isfinite(length)) return {{0, 0, 0}};
  return {{static_cast<float>(out[0] / length), static_cast<float>(out[1] / length),
           static_cast<float>(out[2] / length)}};
}

bool primitiveIsWellFormed(const ExportPrimitive& primitive) {
  const size_t count = primitive.vertexCount();
  if (primitive.positions.size() != count * 3) return false;
  if (!primitive.normals.empty() && primitive.normals.size() != count * 3) return false;
  if (!primitive.texCoords.empty() && primitive.texCoords.size() != count * 2) return false;
  if (!primitive.colors.empty() && primitive.colors.size() != count * 4) return false;
  const size_t arity = primitive.mode == PrimitiveMode::kTriangles ? 3 : primitive.mode == PrimitiveMode::kLines ? 2 : 1;
  if (primitive.indices.size() % arity != 0) return false;
  for (uint32_t index : primitive.indices) {
    if (index >= count) return false;
  }
  return true;
}

std::array<uint32_t, 3> triangleCorners(const ExportPrimitive& primitive, size_t t, bool mirrored) {
  const uint32_t* corner = &primitive.indices[t * 3];
  if (mirrored) return {{corner[0], corner[2], corner[1]}};
  return {{corner[0], corner[1], corner[2]}};
}

std::array<float, 2> transformTexCoord(const std::array<float, 9>& m, float s, float t) {
  return {{m[0] * s + m[3] * t + m[6], m[1] * s + m[4] * t + m[7]}};
}

bool isIdentityTextureTransform(const std::array<float, 9>& m) {
  static const std::array<float, 9> kIdentity{{1, 0, 0, 0, 1, 0, 0, 0, 1}};
  return m == kIdentity;
}

}  // namespace lumeric
