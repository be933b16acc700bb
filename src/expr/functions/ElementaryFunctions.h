// The elementary functions of scalars, as bodies for the function tables.
// Arguments are scalars; results are new scalar terms.
#ifndef LUMERIC_EXPR_FUNCTIONS_ELEMENTARYFUNCTIONS_H
#define LUMERIC_EXPR_FUNCTIONS_ELEMENTARYFUNCTIONS_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// A standard one-argument function applied to the scalar, refusing nothing:
// outside its domain it gives what the standard library gives.
template <double (*F)(double)>
Term* applyToScalar(Term* const* arguments, FieldExpression*) {
  return ScalarTerm::make(F(scalarArgument(arguments, 0)));
}
// A standard two-argument function applied to the two scalars.
template <double (*F)(double, double)>
Term* applyToScalars(Term* const* arguments, FieldExpression*) {
  return ScalarTerm::make(F(scalarArgument(arguments, 0), scalarArgument(arguments, 1)));
}

Term* piConstant(Term* const* arguments, FieldExpression* at);
Term* eConstant(Term* const* arguments, FieldExpression* at);

// ln(x) and log10(x); x <= 0 is refused.
Term* naturalLogarithm(Term* const* arguments, FieldExpression* at);
Term* decimalLogarithm(Term* const* arguments, FieldExpression* at);

// atan2(a, b): 0 for (0, 0); b = 0 with a != 0 is refused.
Term* arcTangentOfQuotient(Term* const* arguments, FieldExpression* at);
// round(a, b): a to a multiple of b > 0, halves of positive quotients up and
// every negative quotient down; b <= 0 leaves a as it is.
Term* roundToMultiple(Term* const* arguments, FieldExpression* at);
// max(a, b) and min(a, b): a on a tie.
Term* largerOf(Term* const* arguments, FieldExpression* at);
Term* smallerOf(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_ELEMENTARYFUNCTIONS_H
