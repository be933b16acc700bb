// The visit of one node in a pass: records the node's enclosing node (the
// top of the context's node stack), pushes the node for the time of the
// visit and pops it when the visit ends, on every path out of the scope.
#ifndef LUMERIC_NODES_EXTENSIONS_NODEVISIT_H
#define LUMERIC_NODES_EXTENSIONS_NODEVISIT_H

#include "driver/QvContext.h"
#include "reader/QvNode.h"

namespace lumeric {

class NodeVisit {
 public:
  explicit NodeVisit(QvNode* node) {
    node->parent = theContext.topNode();
    theContext.pushNode(node);
  }
  ~NodeVisit() { theContext.popNode(); }
  NodeVisit(const NodeVisit&) = delete;
  NodeVisit& operator=(const NodeVisit&) = delete;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_NODEVISIT_H
