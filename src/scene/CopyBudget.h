// The budget of nodes a run makes by copying (LOOP, SELECT, USE).  A few
// lines of scene can ask for billions of copies; past the budget
// (theRun.limits.maxNodes) no further copy is made and the run ends with
// what was made.
#ifndef LUMERIC_SCENE_COPYBUDGET_H
#define LUMERIC_SCENE_COPYBUDGET_H

namespace lumeric {

class QvNode;

// What one copied node counts against the memory budget besides its list
// values and texts: about what a node with a few fields takes.
constexpr long long kBytesPerCopy = 256;

// Counts one copy made while evaluating `at`.  False when this budget, the
// memory budget (MemoryBudget.h) or the evaluation budget with the work of
// large results in it (expr/WorkBudget.h) is spent; the first refusal posts the
// budget's message at `at`.
bool admitCopy(QvNode* at);

}  // namespace lumeric

#endif  // LUMERIC_SCENE_COPYBUDGET_H
