// Rough terrain: a grid of points whose heights come from recursive
// midpoint displacement, optionally seeded, and the face index list that
// joins the grid into quadrilaterals.
#ifndef LUMERIC_EXPR_FUNCTIONS_FRACTALSURFACES_H
#define LUMERIC_EXPR_FUNCTIONS_FRACTALSURFACES_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// FractalSurfaceData(rows, columns, roughness [, seeds]): the (rows *
// columns) x 3 matrix whose row i * columns + j is the point (i, height, j).
// The border is flat at height 0; interior heights are drawn from the random
// generator, in an order that fixes every number.  Counts are truncated
// toward zero; a count below 1 gives no points.
Term* fractalSurfaceData(Term* const* arguments, FieldExpression* at);
Term* seededFractalSurfaceData(Term* const* arguments, FieldExpression* at);
// FractalSurfaceIndex(rows, columns): for each grid square, row by row, the
// indices k, k + 1, k + columns + 1, k + columns and the terminator -1.  A
// count below 2 gives an empty vector.
Term* fractalSurfaceIndex(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_FRACTALSURFACES_H
