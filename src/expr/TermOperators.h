// The operators of the expression language.  Each takes its operands by
// pointer (non-null, unchanged) and returns a new term, or posts its message
// at `at` and returns null, which fails the evaluation.
#ifndef LUMERIC_EXPR_TERMOPERATORS_H
#define LUMERIC_EXPR_TERMOPERATORS_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

enum class Comparison { kEqual, kNotEqual, kLess, kGreater, kLessOrEqual, kGreaterOrEqual };

// A scalar counts as false when it is +0.0 or -0.0 and true otherwise,
// NaN included.
inline bool isTrue(double value) { return value != 0.0; }

// Scalars, vectors and matrices with each other (no vector with matrix).
Term* addTerms(Term* left, Term* right, FieldExpression* at);
Term* subtractTerms(Term* left, Term* right, FieldExpression* at);
// Vectors multiply element by element; matrices as matrices.
Term* multiplyTerms(Term* left, Term* right, FieldExpression* at);
// Scalars only.  Dividing by zero posts "Attempt to divide by 0.0" and
// yields 0 without failing.
Term* divideTerms(Term* left, Term* right, FieldExpression* at);
Term* remainderTerms(Term* left, Term* right, FieldExpression* at);
Term* powerTerms(Term* left, Term* right, FieldExpression* at);
// Unary minus of a scalar, vector or matrix.
Term* negateTerm(Term* operand, FieldExpression* at);
// Logical not, and, or of scalars; results are 1.0 or 0.0.  Both operands of
// and/or have been evaluated: there is no short-circuit.
Term* notTerm(Term* operand, FieldExpression* at);
Term* andTerms(Term* left, Term* right, FieldExpression* at);
Term* orTerms(Term* left, Term* right, FieldExpression* at);
// Exact comparison of two scalars, left operand first; 1.0 or 0.0.
Term* compareTerms(Comparison comparison, Term* left, Term* right, FieldExpression* at);
// IF test THEN ifTrue ELSE ifFalse: one of the two branch terms itself.
Term* chooseTerm(Term* test, Term* ifTrue, Term* ifFalse, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TERMOPERATORS_H
