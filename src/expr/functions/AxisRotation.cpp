#include "expr/functions/AxisRotation.h"

#include <cmath>

#include "expr/functions/TransformBuilders.h"

namespace lumeric {

namespace {

// Only the first three elements of a point are read.  A shorter vector
// counts its missing coordinates as 0, so (x, y) is the point (x, y, 0) of
// the ground plane rather than a refusal.
void pointOf(const VectorTerm* v, double point[3]) {
  for (int k = 0; k < 3; ++k) point[k] = k < v->length ? v->elements[k] : 0.0;
}

void transpose(const double m[kTransformSize], double t[kTransformSize]) {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) t[4 * j + i] = m[4 * i + j];
  }
}

// A = Ax * Ay carries the unit direction (a, b, c) onto +z: Ax turns it
// about x onto (a, 0, d), Ay about y onto (0, 0, 1).
void fillAlignment(double a, double b, double c, double d, double alignment[kTransformSize]) {
  double ax[kTransformSize];
  fillIdentity(ax);
  ax[5] = c / d;
  ax[6] = b / d;
  ax[9] = -b / d;
  ax[10] = c / d;
  double ay[kTransformSize] = {d, 0, a, 0, 0, 1, 0, 0, -a, 0, d, 0, 0, 0, 0, 1};
  multiplyTransforms(ax, ay, alignment);
}

}  // namespace

// The products are formed in the order T(-p1) * A * Rz * A^T * T(p1) on
// local arrays with the same summation as the matrix product of terms, so
// the call makes its result term and nothing else.
//
// A direction along x (d = 0) is refused, not turned with the plain x
// rotation: Ax is undefined there and the language gives no value.
Term* rotationAboutLine(Term* const* arguments, FieldExpression*) {
  double p1[3], p2[3];
  pointOf(vectorArgument(arguments, 0), p1);
  pointOf(vectorArgument(arguments, 1), p2);
  const double angle = scalarArgument(arguments, 2);
  const double dx = p2[0] - p1[0], dy = p2[1] - p1[1], dz = p2[2] - p1[2];
  const double length = std::sqrt(dx * dx + dy * dy + dz * dz);
  if (length == 0.0) return nullptr;
  const double a = dx / length, b = dy / length, c = dz / length;
  const double d = std::sqrt(b * b + c * c);
  if (d == 0.0) return nullptr;

  double alignment[kTransformSize], inverseAlignment[kTransformSize];
  fillAlignment(a, b, c, d, alignment);
  transpose(alignment, inverseAlignment);
  double toOrigin[kTransformSize], turn[kTransformSize], back[kTransformSize];
  fillTranslation(-p1[0], -p1[1], -p1[2], toOrigin);
  fillZRotation(angle, turn);
  fillTranslation(p1[0], p1[1], p1[2], back);

  double first[kTransformSize], second[kTransformSize];
  multiplyTransforms(toOrigin, alignment, first);
  multiplyTransforms(first, turn, second);
  multiplyTransforms(second, inverseAlignment, first);
  multiplyTransforms(first, back, second);
  return transformTerm(second);
}

}  // namespace lumeric
