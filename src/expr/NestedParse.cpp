#include "expr/NestedParse.h"

#include "expr/WorkBudget.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// Per-run state: the parses of field expressions in progress, innermost
// last.
FieldExpression* parsesInProgress[NestedParse::kMaxNestedParses] = {};
int parseDepth = 0;

}  // namespace

NestedParse::NestedParse(FieldExpression* expression) : admitted_(admit(expression)) {
  if (admitted_) parsesInProgress[parseDepth++] = expression;
}

NestedParse::~NestedParse() {
  if (admitted_) --parseDepth;
}

bool NestedParse::anyInProgress() { return parseDepth > 0; }

void NestedParse::endRun() { parseDepth = 0; }

bool NestedParse::admit(FieldExpression* expression) {
  // Nothing is cached, so references to references can take exponential
  // work; past the budget (or past the memory budget) no further nested
  // evaluation starts.
  if (parseDepth > 0 && !admitReference(expression)) return false;
  for (int k = 0; k < parseDepth; ++k) {
    if (parsesInProgress[k] == expression) return reportAtExpression(expression, "Error: Circular reference");
  }
  if (parseDepth == kMaxNestedParses) {
    return reportAtExpression(expression, "Error: Field references nested more than %d deep", kMaxNestedParses);
  }
  return true;
}

}  // namespace lumeric
