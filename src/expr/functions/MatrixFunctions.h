// The matrix functions of the expression language (determinant, inverse,
// transpose and the 3D/4D conversions) as bodies for the function tables.
// Each hands its argument to the term operation of the same meaning.
#ifndef LUMERIC_EXPR_FUNCTIONS_MATRIXFUNCTIONS_H
#define LUMERIC_EXPR_FUNCTIONS_MATRIXFUNCTIONS_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// det(M): M must be square and not empty.
Term* determinantFunction(Term* const* arguments, FieldExpression* at);
Term* inverseFunction(Term* const* arguments, FieldExpression* at);
Term* transposeVector(Term* const* arguments, FieldExpression* at);
Term* transposeMatrix(Term* const* arguments, FieldExpression* at);
Term* vectorTo3D(Term* const* arguments, FieldExpression* at);
Term* matrixTo3D(Term* const* arguments, FieldExpression* at);
Term* vectorTo4D(Term* const* arguments, FieldExpression* at);
Term* matrixTo4D(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_MATRIXFUNCTIONS_H
