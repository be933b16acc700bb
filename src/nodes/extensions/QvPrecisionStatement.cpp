#include "nodes/extensions/QvPrecisionStatement.h"

#include "core/LastingState.h"
#include "expr/Evaluation.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

bool QvPrecisionStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  in->readValueText(expression_, this);
  return true;
}

void QvPrecisionStatement::setQuantum() {
  ScalarTerm* value = asScalar(evaluateTerm(&expression_));
  if (value != nullptr) precisionQuantum = value->value;
}

void QvPrecisionStatement::evaluate(QvGroupNode*, bool) { setQuantum(); }

void QvPrecisionStatement::bindParents() {
  NodeVisit visit(this);
  setQuantum();
}

void QvPrecisionStatement::write(SceneWriter&) {
  NodeVisit visit(this);
  setQuantum();
}

}  // namespace lumeric
