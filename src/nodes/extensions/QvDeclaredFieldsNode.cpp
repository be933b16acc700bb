#include "nodes/extensions/QvDeclaredFieldsNode.h"

#include "expr/Term.h"
#include "reader/QvAtom.h"
#include "reader/QvField.h"

namespace lumeric {

QvDeclaredFieldsNode::~QvDeclaredFieldsNode() = default;

QvField* QvDeclaredFieldsNode::findDeclaredField(const char* name) {
  return declaredFields.findField(this, QvAtom(name));
}

QvDeclaredFieldsNode::NumberValue QvDeclaredFieldsNode::numberOf(QvField* field) {
  NumberValue result;
  if (field == nullptr) return result;
  Term* value = field->GetLumericValue(-1, -1, nullptr);
  ScalarTerm* number = asScalar(value);
  if (value == nullptr) {
    result.state = NumberState::kNoValue;
  } else if (number == nullptr) {
    result.state = NumberState::kNotNumber;
  } else {
    result.state = NumberState::kNumber;
    result.value = number->value;
  }
  return result;
}

void QvDeclaredFieldsNode::cloneDeclaredFieldsInto(QvDeclaredFieldsNode* copy) {
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    QvField* field = declaredFields.getField(this, i)->clone();
    field->setContainer(copy);
    copy->declaredFields.addField(copy, declaredFields.getFieldName(i), field);
  }
}

}  // namespace lumeric
