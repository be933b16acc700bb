#include "scene/QvGroupNode.h"

#include "scene/NodeVisit.h"
#include "writer/SceneWriter.h"

namespace lumeric {

QvGroupNode::~QvGroupNode() = default;

void QvGroupNode::evaluateChildren(QvGroupNode* target, bool copy) {
  // The count is read again after every child: copies that a child adds to
  // this group are visited in the same pass.
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->evaluate(target, copy);
  }
}

void QvGroupNode::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
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
}

void QvGroupNode::bindChildren() {
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->bindParents();
  }
}

void QvGroupNode::bindParents() {
  NodeVisit visit(this);
  bindChildren();
}

void QvGroupNode::writeChildren(SceneWriter& out) {
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->write(out);
  }
}

void QvGroupNode::write(SceneWriter& out) {
  out.openNode(writtenName(), getClassName());
  {
    NodeVisit visit(this);
    writeChildren(out);
  }
  out.closeNode();
}

void QvGroupNode::check() {
  checkFields();
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->check();
  }
}

}  // namespace lumeric
