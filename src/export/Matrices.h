// The transformations VRML 1.0 nodes make, as column-major 4x4 matrices
// (ExportScene.h declares the product and the determinant).
#ifndef LUMERIC_EXPORT_MATRICES_H
#define LUMERIC_EXPORT_MATRICES_H

#include <array>

#include "export/ExportScene.h"

namespace lumeric {

using Vec3 = std::array<double, 3>;

Matrix4 translationMatrix(const Vec3& t);
Matrix4 scaleMatrix(const Vec3& s);
// A rotation of `angle` radians about `axis` (right-handed); identity for
// an axis of length 0.
Matrix4 rotationMatrix(const Vec3& axis, double angle);
// The rotation that takes -Z to `direction`; identity when it has length 0.
Matrix4 rotationFromMinusZ(const Vec3& direction);
// A matrix given as 16 numbers in VRML 1.0's order (row vectors: the
// translation in the last four), as column-major.
Matrix4 matrixFromRowVectorOrder(const double (&numbers)[16]);

Vec3 transformPoint(const Matrix4& m, const Vec3& p);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_MATRICES_H
