// Taking a node's matrix apart for formats that place things by
// translation, rotation and scale rather than by a matrix.
#ifndef LUMERIC_EXPORT_FORMATS_MATRIXPARTS_H
#define LUMERIC_EXPORT_FORMATS_MATRIXPARTS_H

#include <array>

#include "export/ExportScene.h"

namespace lumeric {

struct MatrixParts {
  std::array<double, 3> translation{{0, 0, 0}};
  std::array<double, 4> rotation{{0, 0, 0, 1}};  // unit quaternion x, y, z, w
  std::array<double, 3> scale{{1, 1, 1}};
};

// True when `m` is exactly translation * rotation * scale (an affine matrix
// whose columns are orthogonal, up to rounding), with `parts` filled; a
// mirror has a negative x scale.  False for shear, projection or a column of
// length zero.
bool decomposeMatrix(const Matrix4& m, MatrixParts& parts);

// The translation and rotation of `m` without scale or shear, for cameras
// and lights: the rotation keeps the direction of -Z (where they look or
// shine) and, as far as it can, of +Y (up).
MatrixParts rigidParts(const Matrix4& m);

// The rotation of a unit quaternion as an axis and an angle in radians
// (x, y, z, angle); the identity is (0, 0, 1, 0).
std::array<double, 4> axisAngle(const std::array<double, 4>& quaternion);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_MATRIXPARTS_H
