// Finding the built-in function a call names.
#ifndef LUMERIC_EXPR_FUNCTIONS_FUNCTIONLOOKUP_H
#define LUMERIC_EXPR_FUNCTIONS_FUNCTIONLOOKUP_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// The row whose argument kinds are those of the `count` arguments and whose
// name equals `name` without regard to case; null when there is none.  The
// arguments are not null.  Allocates nothing after the first call.
const FunctionRow* findFunction(const char* name, Term* const* arguments, int count);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_FUNCTIONLOOKUP_H
