// Geometry placed in world coordinates, for the formats that have no nodes
// (STL, OBJ) and for nodes whose matrix a format cannot express.
#ifndef LUMERIC_EXPORT_FORMATS_WORLDPLACEMENT_H
#define LUMERIC_EXPORT_FORMATS_WORLDPLACEMENT_H

#include <array>

#include "export/ExportScene.h"

namespace lumeric {

class WorldPlacement {
 public:
  explicit WorldPlacement(const Matrix4& matrix);

  // The point `p` (x, y, z) placed by the matrix.
  std::array<double, 3> point(const float* p) const;
  // The normal `n` placed by the inverse transpose of the matrix, of unit
  // length; (0, 0, 0) stays so.
  std::array<float, 3> normal(const float* n) const;
  // A mirror: triangles written in world coordinates are wound the other
  // way, so that their front stays outside.
  bool mirrored() const { return mirrored_; }

 private:
  Matrix4 matrix_;
  // The cofactors of the 3x3 part, with the sign of its determinant: the
  // inverse transpose up to a positive factor.
  std::array<double, 9> normalMatrix_;
  bool mirrored_;
};

// Whether the arrays of `primitive` agree: whole vertices, optional arrays
// empty or one entry per vertex, whole triangles, segments or points, and
// every index below the vertex count.
bool primitiveIsWellFormed(const ExportPrimitive& primitive);

// The corners of triangle `t` in the order that keeps its front outside
// when placed by a matrix that is (or is not) a mirror.
std::array<uint32_t, 3> triangleCorners(const ExportPrimitive& primitive, size_t t, bool mirrored);

// The texture coordinate (s, t) moved by a Texture2Transform matrix.
std::array<float, 2> transformTexCoord(const std::array<float, 9>& m, float s, float t);
bool isIdentityTextureTransform(const std::array<float, 9>& m);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_WORLDPLACEMENT_H
