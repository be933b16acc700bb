// One row of the function tables: a name, the kinds of the arguments it
// takes and the code that computes the result.  The dispatcher calls a body
// only with arguments of the row's kinds, so a body reads them with the
// unchecked accessors below.
#ifndef LUMERIC_EXPR_FUNCTIONS_FUNCTIONROW_H
#define LUMERIC_EXPR_FUNCTIONS_FUNCTIONROW_H

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// Returns the result term, or null after posting why (or silently where the
// language says so).
using FunctionBody = Term* (*)(Term* const* arguments, FieldExpression* at);

struct FunctionRow {
  const char* name;   // as users write it; matched without regard to case
  const char* kinds;  // one letter per argument: s scalar, v vector, m matrix, t text
  FunctionBody body;
};

inline double scalarArgument(Term* const* arguments, int k) {
  return static_cast<ScalarTerm*>(arguments[k])->value;
}
inline VectorTerm* vectorArgument(Term* const* arguments, int k) {
  return static_cast<VectorTerm*>(arguments[k]);
}
inline MatrixTerm* matrixArgument(Term* const* arguments, int k) {
  return static_cast<MatrixTerm*>(arguments[k]);
}
inline const char* textArgument(Term* const* arguments, int k) {
  return static_cast<StringTerm*>(arguments[k])->text;
}

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_FUNCTIONROW_H
