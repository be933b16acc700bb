// The work of evaluations, charged to the evaluation budget
// (theRun.limits.maxEvaluations, --max-evaluations) beside the field
// references it counts: a result of many numbers costs one unit per
// kValuesPerWorkUnit of them, about what evaluating one reference costs.
// A reference to a large computed list is otherwise as cheap to write as
// any other, and a LOOP of a thousand such references runs for minutes.
#ifndef LUMERIC_EXPR_WORKBUDGET_H
#define LUMERIC_EXPR_WORKBUDGET_H

#include <cstddef>

namespace lumeric {

class FieldExpression;

constexpr size_t kValuesPerWorkUnit = 16;

// Charges making `values` numbers.  Silent: the next reference or large
// result finds the budget spent and posts its message.
void chargeValues(size_t values);

// Whether `values` numbers may be made: the evaluation budget is not spent
// and the memory budget has room for them.  The first refusal posts the
// budget's message at `at`; the caller then makes nothing.
bool admitValues(size_t values, FieldExpression* at);

// Whether the evaluation budget holds with one more field reference
// counted; the first refusal posts its message at `at`.
bool admitReference(FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_WORKBUDGET_H
