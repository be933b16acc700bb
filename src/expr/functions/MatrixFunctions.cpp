#include "expr/functions/MatrixFunctions.h"

#include "expr/MatrixSolver.h"
#include "expr/TermConversions.h"
#include "expr/functions/FunctionMessages.h"

namespace lumeric {

Term* determinantFunction(Term* const* arguments, FieldExpression* at) {
  const MatrixTerm* m = matrixArgument(arguments, 0);
  if (m->rows != m->cols || m->rows < 1) {
    return refuseCall(at, "Cannot take the determinate of a %d by %d matrix", m->rows, m->cols);
  }
  return determinantOf(m, at);
}

Term* inverseFunction(Term* const* arguments, FieldExpression* at) { return inverseOf(matrixArgument(arguments, 0), at); }

Term* transposeVector(Term* const* arguments, FieldExpression*) { return transposeTerm(vectorArgument(arguments, 0)); }

Term* transposeMatrix(Term* const* arguments, FieldExpression*) { return transposeTerm(matrixArgument(arguments, 0)); }

Term* vectorTo3D(Term* const* arguments, FieldExpression* at) { return convertTo3D(vectorArgument(arguments, 0), at); }

Term* matrixTo3D(Term* const* arguments, FieldExpression* at) { return convertTo3D(matrixArgument(arguments, 0), at); }

Term* vectorTo4D(Term* const* arguments, FieldExpression* at) { return convertTo4D(vectorArgument(arguments, 0), at); }

Term* matrixTo4D(Term* const* arguments, FieldExpression* at) { return convertTo4D(matrixArgument(arguments, 0), at); }

}  // namespace lumeric
