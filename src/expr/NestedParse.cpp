#include "expr/NestedParse.h"

#include "core/RunState.h"
#include "expr/WorkBudget.h"
#include "scene/SceneMessages.h"

namespace lumeric {

NestedParse::NestedParse(FieldExpression* expression) : admitted_(admit(expression)) {
  if (admitted_) theRun.parsesInProgress[theRun.parseDepth++] = expression;
}

NestedParse::~NestedParse() {
  if (admitted_) --theRun.parseDepth;
}

bool NestedParse::anyInProgress() { return theRun.parseDepth > 0; }

bool NestedParse::admit(FieldExpression* expression) {
  // Nothing is cached, so references to references can take exponential
  // work; past the budget (or past the memory budget) no further nested
  // evaluation starts.
  if (theRun.parseDepth > 0 && !admitReference(expression)) return false;
  for (int k = 0; k < theRun.parseDepth; ++k) {
    if (theRun.parsesInProgress[k] == expression) return reportAtExpression(expression, "Error: Circular reference");
  }
  if (theRun.parseDepth == kMaxNestedParses) {
    return reportAtExpression(expression, "Error: Field references nested more than %d deep", kMaxNestedParses);
  }
  return true;
}

}  // namespace lumeric
