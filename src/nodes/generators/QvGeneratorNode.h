// The common part of Ball, Connect and Wall: group nodes whose fields are
// declared in the file and that are copied, inside LOOPs and SELECTs, as a
// node of the same class holding evaluated clones of those fields, with
// copies of the children.
#ifndef LUMERIC_NODES_GENERATORS_QVGENERATORNODE_H
#define LUMERIC_NODES_GENERATORS_QVGENERATORNODE_H

#include "expr/TermArena.h"
#include "reader/NodeReader.h"
#include "scene/QvDeclaredFieldsNode.h"

namespace lumeric {

template <class Derived>
class QvGeneratorNode : public QvDeclaredFieldsNode {
 public:
  // The body of a group with a fields specification.
  bool readInstance(QvSceneInput* in) override { return readGroupBody(in, this); }

 protected:
  QvGeneratorNode() = default;

  // The group's copy (which adds the name, the line and the children)
  // takes this node.
  QvNode* newInstance() override {
    Derived* copy = new Derived();
    // The clones keep their values as text, so the terms evaluated for
    // them can go at once: a LOOP of many generators would otherwise hold
    // every repetition's terms until the end of the run.
    TermScope scope;
    cloneDeclaredFieldsInto(copy);
    return copy;
  }
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_QVGENERATORNODE_H
