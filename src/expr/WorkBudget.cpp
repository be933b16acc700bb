#include "expr/WorkBudget.h"

#include "core/RunState.h"
#include "scene/MemoryBudget.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

long spentUnits() { return theRun.nestedEvaluations + theRun.valueWork; }

// Whether the evaluation budget holds; the first time it does not, its
// message is posted at `at`: the references alone, or the references and
// the work of large results.
bool evaluationBudgetHolds(FieldExpression* at) {
  if (spentUnits() <= theRun.limits.maxEvaluations) return true;
  if (theRun.evaluationBudgetSpent) return false;
  theRun.evaluationBudgetSpent = true;
  if (theRun.valueWork == 0) {
    return reportAtExpression(at,
                              "Error: More than %ld evaluations of field references - further references "
                              "read as 0 (the budget is raised with --max-evaluations)",
                              theRun.limits.maxEvaluations);
  }
  theRun.workBudgetSpent = true;
  return reportAtExpression(at,
                            "Error: More than %ld units of evaluation work (field references, and one unit for "
                            "every %zu numbers computed) - further references read as 0, and no further large "
                            "results or copies are made (the budget is raised with --max-evaluations)",
                            theRun.limits.maxEvaluations, kValuesPerWorkUnit);
}

}  // namespace

void chargeValues(size_t values) { theRun.valueWork += static_cast<long>(values / kValuesPerWorkUnit); }

bool admitValues(size_t values, FieldExpression* at) {
  const long units = static_cast<long>(values / kValuesPerWorkUnit);
  if (units > 0 && spentUnits() + units > theRun.limits.maxEvaluations) {
    // Counted now so that the budget reads as spent from here on.
    theRun.valueWork += units;
    return evaluationBudgetHolds(at);
  }
  return evaluationBudgetHolds(at) && memoryBudgetHolds(at, values * sizeof(double));
}

bool admitReference(FieldExpression* at) {
  ++theRun.nestedEvaluations;
  return evaluationBudgetHolds(at) && memoryBudgetHolds(at);
}

}  // namespace lumeric
