// The literal forms of the grammar that build values piece by piece:
// vectors "(a, b, c)", matrices "(a, b);(c, d)" and name expressions
// "Ball~`i`", "Ball~Top".  Failures post their message at `at` and give null.
#ifndef LUMERIC_EXPR_LITERALBUILDING_H
#define LUMERIC_EXPR_LITERALBUILDING_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// The list so far followed by one more item: a vector grows in place by a
// scalar or by a vector's elements; two scalars make a new 2-vector.
// Anything else posts "Error in forming vector".
Term* appendToVector(Term* list, Term* item, FieldExpression* at);
// The tuple so far followed by one more parenthesised row: two vectors of
// one length make a new 2-row matrix; a matrix grows in place by a vector as
// long as a row.  Anything else posts "Error in forming matrix".
Term* appendMatrixRow(Term* tuple, Term* row, FieldExpression* at);
// The name followed by the value formatted with "%g": a scalar, a vector of
// 2 to 4 elements as "(a,b)", or a string as it is.  Other values post
// "Cannot format value for use with string expression".
StringTerm* appendFormattedValue(const StringTerm* name, const Term* value, FieldExpression* at);
// The two names joined with nothing between.
StringTerm* joinNames(const StringTerm* first, const StringTerm* second);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_LITERALBUILDING_H
