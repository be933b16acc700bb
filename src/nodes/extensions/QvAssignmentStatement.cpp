#include "nodes/extensions/QvAssignmentStatement.h"

#include <string>

#include "expr/Evaluation.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"

namespace lumeric {

bool QvAssignmentStatement::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  std::string text = std::string(keyword_) + " ";
  size_t length = text.size();
  std::string target = readWord(in);
  // The running length counts the target even when it did not fit, so an
  // over-long target makes the whole statement too long.
  if (text.size() + target.size() < kMaxText) text += target;
  length += target.size();
  text += ' ';
  std::string value = readWord(in);
  length += value.size() + 1;
  if (length < kMaxText) {
    text += value;
    expression_.setText(text.c_str());
    expression_.line = in->getLine();
    expression_.owner = this;
  } else {
    readError(in, "Set expression too long.  Length must be less than %d bytes.", kMaxText);
  }
  return true;
}

void QvAssignmentStatement::evaluate(QvGroupNode*, bool) { evaluateTerm(&expression_); }

void QvAssignmentStatement::write(SceneWriter&) {
  NodeVisit visit(this);
}

}  // namespace lumeric
