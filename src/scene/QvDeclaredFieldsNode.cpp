#include "scene/QvDeclaredFieldsNode.h"

#include "core/QvAtom.h"
#include "scene/QvField.h"

namespace lumeric {

QvDeclaredFieldsNode::~QvDeclaredFieldsNode() = default;

QvField* QvDeclaredFieldsNode::findDeclaredField(const char* fieldName) {
  // The names are compared as texts: a node declares a few fields, and
  // interning the name would cost more than the comparisons (a generator
  // looks up its fields every time it is written).
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    if (declaredFields.getFieldName(i).named(fieldName)) return declaredFields.getField(this, i);
  }
  return nullptr;
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
