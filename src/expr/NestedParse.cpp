#include "expr/NestedParse.h"

#include "driver/QvContext.h"

namespace lumeric {

namespace {

FieldExpression* parsesInProgress[NestedParse::kMaxNestedParses];
int depth = 0;

}  // namespace

NestedParse::NestedParse(FieldExpression* expression) : admitted_(admit(expression)) {
  if (admitted_) parsesInProgress[depth++] = expression;
}

NestedParse::~NestedParse() {
  if (admitted_) --depth;
}

bool NestedParse::anyInProgress() { return depth > 0; }

bool NestedParse::admit(FieldExpression* expression) {
  for (int k = 0; k < depth; ++k) {
    if (parsesInProgress[k] == expression) {
      theContext.reportAtExpression(expression, "Error: Circular reference");
      return false;
    }
  }
  if (depth == kMaxNestedParses) {
    theContext.reportAtExpression(expression, "Error: Field references nested more than %d deep", kMaxNestedParses);
    return false;
  }
  return true;
}

}  // namespace lumeric
