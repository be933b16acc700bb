// Unit suffixes: "value'unit" converts a length to metres or an angle to
// radians.
#ifndef LUMERIC_EXPR_FUNCTIONS_UNITS_H
#define LUMERIC_EXPR_FUNCTIONS_UNITS_H

namespace lumeric {

class FieldExpression;
struct Term;

// Multiplies the scalar term's own value by the unit's factor (the name
// matched without regard to case) and returns the same term.  A term that is
// not a scalar, or a unit not in the table, posts "Conversion %s not found"
// and comes back unchanged.
Term* convertUnit(Term* term, const char* unit, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_UNITS_H
