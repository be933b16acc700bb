#include "nodes/extensions/QvUseStatement.h"

#include <string>

#include "expr/Evaluation.h"
#include "reader/QvGroupNode.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

bool QvUseStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  std::string text = "use " + readWord(in);
  if (text.size() < kMaxText) {
    expression_.setText(text.c_str());
    expression_.owner = this;
    expression_.line = in->getLine();
  } else {
    theContext.readError(in, "Use expression too long.  Length must be less than %d bytes.", kMaxText);
  }
  return true;
}

void QvUseStatement::evaluate(QvGroupNode* parentGroup, bool copy) {
  visit([&] {
    if (!copy || parentGroup == nullptr) return;
    QvUseStatement* duplicate = new QvUseStatement();
    duplicate->line = line;
    duplicate->expression_ = expression_;
    duplicate->expression_.owner = duplicate;
    parentGroup->addChild(duplicate);
  });
}

void QvUseStatement::write(FILE* out) {
  theContext.writeIndented(out, "%s", "USE");
  parent = theContext.topNode();
  StringTerm* name = asString(evaluateTerm(&expression_));
  if (name != nullptr && name->text != nullptr) {
    std::fprintf(out, " %s\n", name->text);
  } else {
    theContext.reportAtExpression(&expression_, "Cannot evaluate USE expression");
    std::fprintf(out, " %s\n", "ERROR: NO NAME DEFINED");
  }
}

}  // namespace lumeric
