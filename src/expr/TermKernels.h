// The element-wise kernels behind the arithmetic operators.  Each returns a
// new term, or posts its message at `at` and returns null.  Operands are
// never modified.
#ifndef LUMERIC_EXPR_TERMKERNELS_H
#define LUMERIC_EXPR_TERMKERNELS_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// v[i] + s; refuses an empty vector.
VectorTerm* addScalarToVector(double s, const VectorTerm* v, FieldExpression* at);
// M[i][j] + s; refuses a matrix with no rows or no columns.
MatrixTerm* addScalarToMatrix(double s, const MatrixTerm* m, FieldExpression* at);
// a[i] + b[i] and a[i] - b[i]; both non-empty and of one length.
VectorTerm* addVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at);
VectorTerm* subtractVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at);
// A[i][j] + B[i][j] and A[i][j] - B[i][j]; both non-empty and of one shape.
MatrixTerm* addMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at);
MatrixTerm* subtractMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at);
// v[i] * s and M[i][j] * s; refuse empty operands.
VectorTerm* scaleVector(double s, const VectorTerm* v, FieldExpression* at);
MatrixTerm* scaleMatrix(double s, const MatrixTerm* m, FieldExpression* at);
// a[i] * b[i], element by element (not a dot product).
VectorTerm* multiplyVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at);
// The matrix product of an r x n and an n x c matrix.
MatrixTerm* multiplyMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TERMKERNELS_H
