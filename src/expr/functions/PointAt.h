// PointAt: the orientation that turns a viewer at an eye point, looking
// along -z with +y up, toward a target point, and its four call forms.
#ifndef LUMERIC_EXPR_FUNCTIONS_POINTAT_H
#define LUMERIC_EXPR_FUNCTIONS_POINTAT_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// Writes (axis x, y, z, angle) to `orientation`.  An eye on the target
// posts "No direction specificed" at `at` and gives (0, 1, 0, 0); so does
// any result that is not finite, without a message.
void pointAtOrientation(const double eye[3], const double target[3], double orientation[4], FieldExpression* at);

// PointAt(x, y, z) and PointAt(target): from the field "position" of the
// expression's owner.
Term* pointAtFromPosition(Term* const* arguments, FieldExpression* at);
Term* pointAtVectorFromPosition(Term* const* arguments, FieldExpression* at);
// PointAt(eye, target) with two 3-vectors.
Term* pointAtVectors(Term* const* arguments, FieldExpression* at);
// PointAt(x1, y1, z1, x2, y2, z2).
Term* pointAtCoordinates(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_POINTAT_H
