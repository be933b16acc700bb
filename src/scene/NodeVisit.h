// The stack of nodes being visited, and the one way to visit a node: a
// NodeVisit records the enclosing node (the top of the stack) as the node's
// parent and pushes the node for its own lifetime.  Every pass that a node
// hands down to its children (evaluate, bindParents, write) runs inside a
// visit of that node, so expressions below it find their enclosing nodes.
#ifndef LUMERIC_SCENE_NODEVISIT_H
#define LUMERIC_SCENE_NODEVISIT_H

#include "core/RunState.h"

namespace lumeric {

class QvNode;

class NodeStack {
 public:
  static constexpr int kMaxNodes = kMaxNodeDepth;

  NodeStack() = default;
  ~NodeStack() { clear(); }
  NodeStack(const NodeStack&) = delete;
  NodeStack& operator=(const NodeStack&) = delete;

  // push takes a reference on the node; pop releases the reference its own
  // push took.  The stack keeps kMaxNodes nodes; pushes beyond that are
  // only counted (and take no reference), so that every pop undoes exactly
  // its own push and top() stays the deepest stored node.  The reader never
  // builds trees deeper than the stack.
  void push(QvNode* node);
  void pop();
  // The node being visited, or null outside every visit.
  QvNode* top() const { return nodes_[depth_]; }
  // Pops everything (end of run).
  void clear();

 private:
  QvNode* nodes_[kMaxNodes + 1] = {};
  int depth_ = 0;
  int overflow_ = 0;
};

extern NodeStack theNodeStack;

class NodeVisit {
 public:
  // Sets node->parent to the node being visited, then pushes `node`.
  explicit NodeVisit(QvNode* node);
  ~NodeVisit() { theNodeStack.pop(); }
  NodeVisit(const NodeVisit&) = delete;
  NodeVisit& operator=(const NodeVisit&) = delete;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_NODEVISIT_H
