#include "expr/TestNode.h"

namespace lumeric {

TestField* TestNode::addField(const char* fieldName, const char* text) {
  TestField* field = new TestField(text);
  table_.addField(this, fieldName, field);
  field->attachNode(this);
  return field;
}

}  // namespace lumeric
