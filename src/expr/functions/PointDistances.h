// Distances and midpoints of points given as scalar coordinates.
#ifndef LUMERIC_EXPR_FUNCTIONS_POINTDISTANCES_H
#define LUMERIC_EXPR_FUNCTIONS_POINTDISTANCES_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// dist(x1, y1, x2, y2): the distance of two points of the plane.
Term* planeDistance(Term* const* arguments, FieldExpression* at);
// dist(x1, y1, z1, x2, y2, z2): the distance of two points of space.
Term* spaceDistance(Term* const* arguments, FieldExpression* at);
// Center(x1, y1, z1, x2, y2, z2): the 3-vector half way between them.
Term* midpointOf(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_POINTDISTANCES_H
