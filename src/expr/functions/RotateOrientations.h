// The Rotate forms that give an orientation (axis x, y, z, angle): the one
// that turns the direction p2 - p1 onto the direction p4 - p3.
#ifndef LUMERIC_EXPR_FUNCTIONS_ROTATEORIENTATIONS_H
#define LUMERIC_EXPR_FUNCTIONS_ROTATEORIENTATIONS_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// Rotate(p1, p2, p3, p4) with four 3-vectors.
Term* rotateBetweenPoints(Term* const* arguments, FieldExpression* at);
// Rotate(x1, y1, z1, x2, y2, z2): directions from the origin.
Term* rotateBetweenDirections(Term* const* arguments, FieldExpression* at);
// Rotate with the four points as twelve coordinates.
Term* rotateBetweenCoordinates(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_ROTATEORIENTATIONS_H
