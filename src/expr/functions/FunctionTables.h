// Every built-in function of the expression language, one row each.
#ifndef LUMERIC_EXPR_FUNCTIONS_FUNCTIONTABLES_H
#define LUMERIC_EXPR_FUNCTIONS_FUNCTIONTABLES_H

#include <cstddef>

#include "expr/functions/FunctionRow.h"

namespace lumeric {

struct FunctionTable {
  const FunctionRow* rows;
  size_t size;
};

// The rows in a fixed order; no two share both kinds and name.
FunctionTable builtinFunctions();

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_FUNCTIONTABLES_H
