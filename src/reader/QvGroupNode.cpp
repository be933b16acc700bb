#include "reader/QvGroupNode.h"

#include "driver/QvContext.h"
#include "reader/NodeFrame.h"
#include "reader/NodeReader.h"
#include "reader/QvFieldTable.h"

namespace lumeric {

QvGroupNode::~QvGroupNode() = default;

void QvGroupNode::evaluateChildren(QvGroupNode* target, bool copy) {
  // The count is read again after every child: copies that a child adds to
  // this group are visited in the same pass.
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    evaluatingIndex_ = i;
    if (child != nullptr) child->evaluate(target, copy);
  }
}

int QvGroupNode::indexOfChild(const QvNode* child) const {
  // A child that inserts nodes behind itself while its group evaluates it
  // finds its place without a search of the list.
  int hint = evaluatingIndex_;
  if (hint >= 0 && hint < children.getLength() && children.get(hint) == child) return hint;
  return children.find(child);
}

void QvGroupNode::evaluate(QvGroupNode* parentGroup, bool copy) {
  parent = theContext.topNode();
  theContext.pushNode(this);
  if (copy) {
    QvGroupNode* duplicate = static_cast<QvGroupNode*>(newInstance());
    if (duplicate != nullptr) {
      QvNodeRef keep(duplicate);
      initCopy(duplicate);
      if (parentGroup != nullptr) parentGroup->addChild(duplicate);
      evaluateChildren(duplicate, true);
    }
  } else {
    evaluateChildren(this, false);
  }
  theContext.popNode();
}

void QvGroupNode::bindChildren() {
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->bindParents();
  }
}

void QvGroupNode::bindParents() {
  parent = theContext.topNode();
  theContext.pushNode(this);
  bindChildren();
  theContext.popNode();
}

void QvGroupNode::writeChildren(FILE* out, int first) {
  for (int i = first < 0 ? 0 : first; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->write(out);
  }
}

void QvGroupNode::write(FILE* out) {
  writeOpeningLine(out, this, getClassName());
  parent = theContext.topNode();
  theContext.pushNode(this);
  ++theContext.indentLevel;
  writeChildren(out);
  --theContext.indentLevel;
  theContext.popNode();
  writeClosingLine(out);
}

void QvGroupNode::check() {
  checkFields();
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->check();
  }
}

bool QvGroupNode::readInstance(QvSceneInput* in) {
  QvFieldTable* table = getFieldTable();
  if (table != nullptr) {
    if (!isBuiltIn && !table->readSpecification(in, this)) return false;
    if (!table->readFieldValues(in, this, false)) return false;
  }
  return readChildren(in);
}

bool QvGroupNode::readChildren(QvSceneInput* in) {
  for (;;) {
    QvNode* child = nullptr;
    if (!readNode(in, child)) {
      discardNode(child);
      return false;
    }
    if (child == nullptr) return true;
    addChild(child);
  }
}

}  // namespace lumeric
