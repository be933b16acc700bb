#include "expr/TestNode.h"

namespace lumeric {

TestField* TestNode::addField(const char* name, const char* text) {
  TestField* field = new TestField(text);
  table_.addField(this, name, field);
  field->attachNode(this);
  return field;
}

}  // namespace lumeric
