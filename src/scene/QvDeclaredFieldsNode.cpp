#include "scene/QvDeclaredFieldsNode.h"

#include "core/QvAtom.h"
#include "scene/QvField.h"

namespace lumeric {

QvDeclaredFieldsNode::~QvDeclaredFieldsNode() = default;

QvField* QvDeclaredFieldsNode::findDeclaredField(const char* fieldName) {
  return declaredFields.findField(this, fieldName);
}

void QvDeclaredFieldsNode::cloneDeclaredFieldsInto(QvDeclaredFieldsNode* copy) {
  copy->declaredFields.reserve(declaredFields.getNumFields());
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    QvField* field = declaredFields.getField(this, i)->clone();
    field->setContainer(copy);
    copy->declaredFields.addField(copy, declaredFields.getFieldName(i), field);
  }
}

}  // namespace lumeric
