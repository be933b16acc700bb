// The 4x4 transformation matrices of the expression language, for row
// vectors: a point p becomes p * M, and translations sit in the bottom row.
// The fill functions write the 16 row-major elements of a matrix; the bodies
// make them into new matrix terms for the function tables.
#ifndef LUMERIC_EXPR_FUNCTIONS_TRANSFORMBUILDERS_H
#define LUMERIC_EXPR_FUNCTIONS_TRANSFORMBUILDERS_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

constexpr int kTransformSize = 16;

void fillIdentity(double m[kTransformSize]);
// Identity with the bottom row (x, y, z, 1).
void fillTranslation(double x, double y, double z, double m[kTransformSize]);
// The rotation by `angle` about the z axis, counter-clockwise seen from +z.
void fillZRotation(double angle, double m[kTransformSize]);
// p = a * b for 4x4 matrices, each element summed from 0 in increasing k
// exactly as the matrix product of terms does.  p must not alias a or b.
void multiplyTransforms(const double a[kTransformSize], const double b[kTransformSize], double p[kTransformSize]);

// scale(x): identity with [3][3] = x, a uniform scale through the
// homogeneous coordinate (points come out divided by x after Convert3D).
Term* homogeneousScale(Term* const* arguments, FieldExpression* at);
// XRotate(a), YRotate(a), ZRotate(a): rotations about the axes.
Term* xRotation(Term* const* arguments, FieldExpression* at);
Term* yRotation(Term* const* arguments, FieldExpression* at);
Term* zRotation(Term* const* arguments, FieldExpression* at);
// Translate(x, y, z) and Scale(x, y, z).
Term* translation(Term* const* arguments, FieldExpression* at);
Term* axisScale(Term* const* arguments, FieldExpression* at);
// XYReflect(), YZReflect(), XZReflect(): z, x and y negated.
Term* xyReflection(Term* const* arguments, FieldExpression* at);
Term* yzReflection(Term* const* arguments, FieldExpression* at);
Term* xzReflection(Term* const* arguments, FieldExpression* at);

// A new 4x4 matrix term holding the elements.
MatrixTerm* transformTerm(const double m[kTransformSize]);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_TRANSFORMBUILDERS_H
