#include "nodes/extensions/QvStatementNode.h"

#include "reader/QvSceneInput.h"

namespace lumeric {

std::string QvStatementNode::readWord(QvSceneInput* in) {
  FieldExpression text;
  if (!in->readValueText(text, nullptr) || !text.hasText()) return std::string();
  return text.text();
}

}  // namespace lumeric
