// Rotate(p1, p2, angle): the 4x4 matrix, for row vectors, of the rotation
// by `angle` about the line through p1 with direction p2 - p1,
// counter-clockwise seen from the tip of the direction.
#ifndef LUMERIC_EXPR_FUNCTIONS_AXISROTATION_H
#define LUMERIC_EXPR_FUNCTIONS_AXISROTATION_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// Fails without a message when the direction has length 0 or lies along x
// (its y and z both 0).
Term* rotationAboutLine(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_AXISROTATION_H
