#include "scene/CopyBudget.h"

#include "core/RunState.h"
#include "scene/MemoryBudget.h"
#include "scene/SceneMessages.h"

namespace lumeric {

bool admitCopy(QvNode* at) {
  if (theRun.workBudgetSpent || !memoryBudgetHolds(at)) return false;
  if (theRun.copiedNodes < theRun.limits.maxNodes) {
    ++theRun.copiedNodes;
    // The copy's own memory (the node, its inline fields, its places in
    // lists), which the memory budget cannot see: a LOOP of millions of
    // small copies weighs as much as a few large lists.
    theRun.valueBytes += kBytesPerCopy;
    return true;
  }
  if (theRun.nodeBudgetSpent) return false;
  theRun.nodeBudgetSpent = true;
  return reportAtNode(at,
                      "More than %ld nodes made by copying - no further copies are made (the budget is raised "
                      "with --max-nodes)",
                      theRun.limits.maxNodes);
}

}  // namespace lumeric
