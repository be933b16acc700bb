#include "nodes/extensions/QvPrintStatement.h"

#include "expr/Evaluation.h"
#include "reader/QvSceneInput.h"
#include "scene/SceneMessages.h"

namespace lumeric {

bool QvPrintStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  in->readValueText(expression_, this);
  return true;
}

void QvPrintStatement::report() {
  ScalarTerm* value = asScalar(evaluateTerm(&expression_));
  if (value != nullptr) {
    warnAtExpression(&expression_, "%s is %g", expression_.text(), value->value);
  } else {
    reportAtExpression(&expression_, "Can not evaluate PRINT expression");
  }
}

void QvPrintStatement::evaluate(QvGroupNode*, bool) { report(); }

void QvPrintStatement::write(SceneWriter&) {
  NodeVisit visit(this);
  report();
}

}  // namespace lumeric
