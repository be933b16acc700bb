// Conversions of terms: between three- and four-dimensional coordinates,
// transposition, and scalars used as indices or written as integers.  The coordinate conversions
// return a new term, or post their message at `at` and return null.
#ifndef LUMERIC_EXPR_TERMCONVERSIONS_H
#define LUMERIC_EXPR_TERMCONVERSIONS_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// (x, y, z) -> (x, y, z, 1); a matrix row by row.  Needs 3 elements/columns.
VectorTerm* convertTo4D(const VectorTerm* v, FieldExpression* at);
MatrixTerm* convertTo4D(const MatrixTerm* m, FieldExpression* at);
// (x, y, z, w) -> (x/w, y/w, z/w); a w of zero gives 1e15 with the sign of
// each component (a point at infinity).  Needs 4 elements/columns.
VectorTerm* convertTo3D(const VectorTerm* v, FieldExpression* at);
MatrixTerm* convertTo3D(const MatrixTerm* m, FieldExpression* at);
// A vector becomes an n x 1 column; a matrix its transpose.
MatrixTerm* transposeTerm(const VectorTerm* v);
MatrixTerm* transposeTerm(const MatrixTerm* m);

// `value` truncated toward zero.  Values beyond the int range saturate, so
// that no input can make the conversion undefined; the two differ only in
// NaN.  As an index or count NaN gives the smallest int, a definite (if
// invalid) index; as a number written out (integer fields) it gives 0.
int truncateToIndex(double value);
int truncateToInt(double value);
// The scalar `term` truncated into *index; false when it is not a scalar.
bool indexFromTerm(const Term* term, int* index);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TERMCONVERSIONS_H
