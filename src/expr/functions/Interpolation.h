// Interpolate(a, b, t): the point a fraction t of the way from a to b, for
// two scalars or for two vectors of one length, element by element.
#ifndef LUMERIC_EXPR_FUNCTIONS_INTERPOLATION_H
#define LUMERIC_EXPR_FUNCTIONS_INTERPOLATION_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// t outside [0, 1] is refused first, then vectors of different lengths.
Term* interpolateScalars(Term* const* arguments, FieldExpression* at);
Term* interpolateVectors(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_INTERPOLATION_H
