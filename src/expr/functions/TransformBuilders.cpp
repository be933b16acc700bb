#include "expr/functions/TransformBuilders.h"

#include <cmath>
#include <cstring>

namespace lumeric {

namespace {

inline double& cell(double m[kTransformSize], int i, int j) { return m[4 * i + j]; }

// The identity with one diagonal element replaced.
Term* identityWithDiagonal(int k, double value) {
  MatrixTerm* result = MatrixTerm::make(4, 4);
  fillIdentity(result->elements);
  cell(result->elements, k, k) = value;
  return result;
}

// The rotation by `angle` in the plane of the axes `first` and `second`,
// turning `first` toward `second`.
void fillPlaneRotation(int first, int second, double angle, double m[kTransformSize]) {
  fillIdentity(m);
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  cell(m, first, first) = c;
  cell(m, first, second) = s;
  cell(m, second, first) = -s;
  cell(m, second, second) = c;
}

Term* planeRotation(int first, int second, double angle) {
  MatrixTerm* result = MatrixTerm::make(4, 4);
  fillPlaneRotation(first, second, angle, result->elements);
  return result;
}

}  // namespace

void fillIdentity(double m[kTransformSize]) {
  for (int k = 0; k < kTransformSize; ++k) m[k] = k % 5 == 0 ? 1.0 : 0.0;
}

void fillTranslation(double x, double y, double z, double m[kTransformSize]) {
  fillIdentity(m);
  cell(m, 3, 0) = x;
  cell(m, 3, 1) = y;
  cell(m, 3, 2) = z;
}

void fillZRotation(double angle, double m[kTransformSize]) { fillPlaneRotation(0, 1, angle, m); }

void multiplyTransforms(const double a[kTransformSize], const double b[kTransformSize], double p[kTransformSize]) {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      double sum = 0.0;
      for (int k = 0; k < 4; ++k) sum += a[4 * i + k] * b[4 * k + j];
      p[4 * i + j] = sum;
    }
  }
}

MatrixTerm* transformTerm(const double m[kTransformSize]) {
  MatrixTerm* result = MatrixTerm::make(4, 4);
  std::memcpy(result->elements, m, sizeof(double) * kTransformSize);
  return result;
}

Term* homogeneousScale(Term* const* arguments, FieldExpression*) {
  return identityWithDiagonal(3, scalarArgument(arguments, 0));
}

Term* xRotation(Term* const* arguments, FieldExpression*) { return planeRotation(1, 2, scalarArgument(arguments, 0)); }

// About y the plane turns z toward x, so [0][2] = -sin and [2][0] = sin.
Term* yRotation(Term* const* arguments, FieldExpression*) { return planeRotation(2, 0, scalarArgument(arguments, 0)); }

Term* zRotation(Term* const* arguments, FieldExpression*) { return planeRotation(0, 1, scalarArgument(arguments, 0)); }

Term* translation(Term* const* arguments, FieldExpression*) {
  MatrixTerm* result = MatrixTerm::make(4, 4);
  fillTranslation(scalarArgument(arguments, 0), scalarArgument(arguments, 1), scalarArgument(arguments, 2),
                  result->elements);
  return result;
}

Term* axisScale(Term* const* arguments, FieldExpression*) {
  MatrixTerm* result = MatrixTerm::make(4, 4);
  fillIdentity(result->elements);
  for (int k = 0; k < 3; ++k) cell(result->elements, k, k) = scalarArgument(arguments, k);
  return result;
}

Term* xyReflection(Term* const*, FieldExpression*) { return identityWithDiagonal(2, -1.0); }

Term* yzReflection(Term* const*, FieldExpression*) { return identityWithDiagonal(0, -1.0); }

Term* xzReflection(Term* const*, FieldExpression*) { return identityWithDiagonal(1, -1.0); }

}  // namespace lumeric
