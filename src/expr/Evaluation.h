// The evaluation entry points of the expression language.  Each starts a new
// evaluation (a new serial of the context), parses the expression's text and
// computes while it parses.  Failures have been reported by the time these
// return.
#ifndef LUMERIC_EXPR_EVALUATION_H
#define LUMERIC_EXPR_EVALUATION_H

#include <cstddef>

#include "core/DecimalText.h"
#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// Parses `expression` with the given serial; statement rules store their
// value in *result.  0 on success, 1 on failure.  A null expression or one
// without text returns 0 at once, leaving *result alone.
int parseExpression(FieldExpression* expression, Term** result, int serial, int startToken);

// Whatever the statement stored, or null.
Term* evaluateTerm(FieldExpression* expression);
// The result when it is a string, else null.
StringTerm* evaluateString(FieldExpression* expression);
// The text read as a name expression; the string, else null.
StringTerm* evaluateName(FieldExpression* expression);
// 1 and *out when the parse succeeded with a scalar; else 0, *out untouched.
int evaluateScalar(FieldExpression* expression, double* out);
// When the text is one plain decimal number (core/DecimalText.h), takes the
// steps evaluateScalar takes for it, copies the text into `text`
// (kMaxPlainDecimal + 2 bytes) and describes the copy in *decimal; returns
// true.  Otherwise returns false and nothing happened.  Writers use it to
// round the digits themselves.
bool evaluateDecimal(FieldExpression* expression, char* text, PlainDecimal* decimal);
// 1 when the parse succeeded with a vector of exactly n elements, copied to
// out[0..n-1]; else 0.
int evaluateVector(FieldExpression* expression, double* out, int n);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_EVALUATION_H
