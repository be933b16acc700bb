// The messages of a failed parse.
#ifndef LUMERIC_EXPR_PARSEERRORS_H
#define LUMERIC_EXPR_PARSEERRORS_H

namespace lumeric {

class FieldExpression;

// Posts "Syntax error: found X", followed by " - expecting: A or B ..." when
// `count` > 0.  `found` and `expected` are token codes; the expected ones
// are listed in the order given.
void reportSyntaxError(FieldExpression* at, int found, const int* expected, int count);
// Posts "Expression too complex: found X"; -1 stands for no lookahead.
void reportTooComplex(FieldExpression* at, int found);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_PARSEERRORS_H
