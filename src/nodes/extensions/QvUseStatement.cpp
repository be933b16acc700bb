#include "nodes/extensions/QvUseStatement.h"

#include <string>

#include "scene/CopyBudget.h"
#include "expr/Evaluation.h"
#include "reader/ReadErrors.h"
#include "scene/QvGroupNode.h"
#include "reader/QvSceneInput.h"
#include "scene/SceneMessages.h"

namespace lumeric {

bool QvUseStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  std::string text = "use " + readWord(in);
  if (text.size() < kMaxText) {
    expression_.setText(text.c_str());
    expression_.owner = this;
    expression_.line = in->getLine();
  } else {
    readError(in, "Use expression too long.  Length must be less than %d bytes.", kMaxText);
  }
  return true;
}

void QvUseStatement::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  if (!copy || parentGroup == nullptr || !admitCopy(this)) return;
  QvUseStatement* duplicate = new QvUseStatement();
  copyPlaceInto(duplicate);
  duplicate->expression_ = expression_;
  duplicate->expression_.owner = duplicate;
  parentGroup->addChild(duplicate);
}

void QvUseStatement::write(SceneWriter& out) {
  out.line("%s", kClassName);
  parent = theNodeStack.top();
  StringTerm* usedName = asString(evaluateTerm(&expression_));
  if (usedName != nullptr && usedName->text != nullptr) {
    out.format(" %s\n", usedName->text);
  } else {
    reportAtExpression(&expression_, "Cannot evaluate USE expression");
    out.format(" %s\n", "ERROR: NO NAME DEFINED");
  }
}

}  // namespace lumeric
