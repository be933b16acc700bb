#include "scene/NodeVisit.h"

#include "scene/QvNode.h"

namespace lumeric {

NodeStack theNodeStack;

void NodeStack::push(QvNode* node) {
  if (depth_ >= kMaxNodes) {
    ++overflow_;
    return;
  }
  if (node != nullptr) node->ref();
  nodes_[++depth_] = node;
}

void NodeStack::pop() {
  if (overflow_ > 0) {
    --overflow_;
    return;
  }
  if (depth_ == 0) return;
  QvNode* node = nodes_[depth_];
  nodes_[depth_--] = nullptr;
  if (node != nullptr) node->unref();
}

void NodeStack::clear() {
  overflow_ = 0;
  while (depth_ > 0) pop();
}

NodeVisit::NodeVisit(QvNode* node) {
  node->parent = theNodeStack.top();
  theNodeStack.push(node);
}

}  // namespace lumeric
