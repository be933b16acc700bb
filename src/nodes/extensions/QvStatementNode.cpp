#include "nodes/extensions/QvStatementNode.h"

#include <cstring>

#include "reader/QvSceneInput.h"

namespace lumeric {

bool QvStatementNode::refuseFieldSpecification(QvSceneInput* in) {
  QvAtom word;
  in->readName(word, QvSceneInput::kLowerName);
  if (std::strcmp(word.text(), "fields") == 0) {
    theContext.readError(in, "Cannot use a fields specifications with this node");
    return false;
  }
  in->putBackWord(word.text());
  return true;
}

std::string QvStatementNode::readWord(QvSceneInput* in) {
  FieldExpression text;
  if (!in->readValueText(text, nullptr) || !text.hasText()) return std::string();
  return text.text();
}

}  // namespace lumeric
