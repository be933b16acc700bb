#include "scene/QvField.h"

#include "scene/SceneMessages.h"

namespace lumeric {

void QvField::setCapacity(int, int) {}

void QvField::attachNode(QvNode*) {}

bool QvField::check() { return true; }

void QvSingleField::appendValue(Term*, FieldExpression* where) {
  reportAtExpression(where, "Cannot append values to this field");
}

void QvMultiField::setNum(int count) {
  if (count != num) allocValues(count);
}

}  // namespace lumeric
