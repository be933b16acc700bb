// A declared field of a control node read as one number: LOOP's bounds and
// SELECT's choice.
#ifndef LUMERIC_NODES_EXTENSIONS_DECLAREDNUMBER_H
#define LUMERIC_NODES_EXTENSIONS_DECLAREDNUMBER_H

namespace lumeric {

class QvField;

// What a declared field holds when it is read as one number.
enum class NumberState { kAbsent, kNoValue, kNotNumber, kNumber };
struct NumberValue {
  NumberState state = NumberState::kAbsent;
  double value = 0;
};

// The value of `field` taken as a whole (GetLumericValue(-1, -1)): a number
// only when it evaluates to a scalar; vectors, matrices and strings are
// kNotNumber, a value that does not evaluate kNoValue, a null field kAbsent.
NumberValue declaredNumberOf(QvField* field);

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_DECLAREDNUMBER_H
