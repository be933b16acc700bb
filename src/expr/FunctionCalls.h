// The built-in functions and unit suffixes of the expression language.
// A call is resolved by its number of arguments, then by the kinds of the
// arguments, then by the name (matched without regard to case).
#ifndef LUMERIC_EXPR_FUNCTIONCALLS_H
#define LUMERIC_EXPR_FUNCTIONCALLS_H

namespace lumeric {

class FieldExpression;
struct Term;

// Calls the function `name` with `count` arguments (0, 1, 2, 3, 4, 6 or 12).
// Returns a new term, or null after posting the message; six-argument calls
// with a non-scalar argument and twelve-argument calls fail silently when
// nothing matches.
Term* callFunction(const char* name, Term* const* arguments, int count, FieldExpression* at);

// The unit suffix "value'unit".  A unit that does not apply posts
// "Conversion %s not found" and gives the term back unchanged, so the
// evaluation goes on.
Term* applyUnit(Term* term, const char* unit, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONCALLS_H
