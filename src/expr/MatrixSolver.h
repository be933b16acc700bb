// Determinant and inverse of square matrices through an LU decomposition
// with partial pivoting and a condition estimate.
#ifndef LUMERIC_EXPR_MATRIXSOLVER_H
#define LUMERIC_EXPR_MATRIXSOLVER_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// Condition estimates above this count as singular.
constexpr double kSingularCondition = 1.0e15;

// Factors the n x n row-major array `a` in place (multipliers, negated,
// below the diagonal; U on and above it).  pivot[k] is the row chosen at
// step k; pivot[n-1] ends as (-1)^(number of interchanges).  *condition gets
// an estimate of the condition number, at least 1.  Returns false when a
// zero turns up on the diagonal of the factors (the matrix is singular).
bool luDecompose(int n, double* a, int* pivot, double* condition);
// Solves A x = b with the factors of luDecompose; b is replaced by x.
// Returns false when it meets a zero on the diagonal of the factors.
bool luSolve(int n, const double* a, const int* pivot, double* b);

// The determinant of a square, non-empty matrix: 0 for a singular one (with
// "Cannot compute the determinate of singular matrix" when only the
// condition estimate shows it).  Other shapes post their message and give
// null.  The operand is not changed.
Term* determinantOf(const MatrixTerm* m, FieldExpression* at);
// The inverse of a square, non-empty matrix.  A singular matrix posts
// "Cannot compute the inverse of a matrix" and gives a matrix of zeros, so
// the evaluation goes on with a defined value.  Other shapes post their
// message and give null.
MatrixTerm* inverseOf(const MatrixTerm* m, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_MATRIXSOLVER_H
