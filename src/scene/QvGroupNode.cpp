#include "scene/QvGroupNode.h"

#include "scene/CopyBudget.h"
#include "scene/NodeVisit.h"
#include "writer/SceneWriter.h"

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
  NodeVisit visit(this);
  if (copy) {
    if (!admitCopy(this)) return;
    QvGroupNode* duplicate = static_cast<QvGroupNode*>(newInstance());
    if (duplicate != nullptr) {
      NodeRef keep(duplicate);
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

void QvGroupNode::writeChildren(SceneWriter& out, int first) {
  for (int i = first < 0 ? 0 : first; i < children.getLength(); ++i) {
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
