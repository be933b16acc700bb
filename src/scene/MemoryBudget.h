// The budget of memory a run spends on copied and computed values (the
// elements of list fields, the texts of field expressions, the terms of
// evaluations, and a fixed share for every copied node (CopyBudget.h);
// theRun.valueBytes against theRun.limits.maxMemory).  Twenty
// copies of a large surface take hundreds of megabytes, so the node budget
// alone does not keep a scene within memory.  Past this budget no further
// copy is made, no further field reference is evaluated (it reads as 0) and
// no further large result is made; the run ends with what was made.
#ifndef LUMERIC_SCENE_MEMORYBUDGET_H
#define LUMERIC_SCENE_MEMORYBUDGET_H

#include <cstddef>

namespace lumeric {

class FieldExpression;
class QvNode;

// Whether the values alive, and `more` bytes besides, stay within the
// budget.  The first refusal posts the budget's message at the node or the
// expression.
bool memoryBudgetHolds(const QvNode* at, size_t more = 0);
bool memoryBudgetHolds(const FieldExpression* at, size_t more = 0);

}  // namespace lumeric

#endif  // LUMERIC_SCENE_MEMORYBUDGET_H
