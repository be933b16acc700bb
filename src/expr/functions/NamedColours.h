// Colours by name and by grey level.  A colour is a 3-vector of red, green
// and blue between 0 and 1.
#ifndef LUMERIC_EXPR_FUNCTIONS_NAMEDCOLOURS_H
#define LUMERIC_EXPR_FUNCTIONS_NAMEDCOLOURS_H

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// Color("name"): a colour of the table, the name matched without regard to
// case; another name posts "Color %s not found" and fails.
Term* namedColour(Term* const* arguments, FieldExpression* at);
// GreyColor(x): (1 - x, 1 - x, 1 - x), 0 white and 1 black.  The argument
// term itself is first clamped to [0, 1].
Term* greyColour(Term* const* arguments, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_NAMEDCOLOURS_H
