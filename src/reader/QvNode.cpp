#include "reader/QvNode.h"

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "reader/FieldExpression.h"

namespace lumeric {

QvNode::~QvNode() {
  if (!name.isEmpty()) removeName(this, name.text());
  delete nameExpression;
}

void QvNode::unref() {
  if (--refCount <= 0) delete this;
}

void QvNode::bindParents() { parent = theContext.topNode(); }

void QvNode::check() {}

bool QvNode::readInstance(QvSceneInput*) { return true; }

bool QvNode::hasName() const { return nameExpression != nullptr || !name.isEmpty(); }

const char* QvNode::getName() { return name.text(); }

void QvNode::setName(QvAtom newName, bool) { name = newName; }

void QvNode::setNameExpression(FieldExpression* expression) {
  delete nameExpression;
  nameExpression = expression;
}

void QvNode::evaluateLeaf(QvGroupNode*, bool) {}

void QvNode::initCopy(QvNode*) {}

void QvNode::checkFields() {}

}  // namespace lumeric
