// What every standard VRML 1.0 node class shares: its class table, its
// copy, its frame when written and its check.  A class states only its
// fields with their defaults (in its constructor), its name and, for
// groups, when an empty line separates its fields from its children.
#ifndef LUMERIC_NODES_QVSTANDARDNODE_H
#define LUMERIC_NODES_QVSTANDARDNODE_H

#include <type_traits>

#include "expr/TermArena.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/QvGroupNode.h"
#include "scene/NodeClass.h"
#include "writer/SceneWriter.h"

namespace lumeric {

// When a group writes an empty line between its fields and its children.
enum class BlankLine { kNever, kIfChildren, kAlways };

template <class Derived, class Base = QvNode>
class QvStandardNode : public Base {
  static constexpr bool kIsGroup = std::is_base_of<QvGroupNode, Base>::value;

 public:
  QvFieldTable* getFieldTable() override { return nodeClass().table(); }
  const char* getClassName() const override { return Derived::kClassName; }

  void evaluate(QvGroupNode* parentGroup, bool copy) override {
    if constexpr (kIsGroup) {
      QvGroupNode::evaluate(parentGroup, copy);
    } else if (copy) {
      // The copy keeps its values as texts, so the terms evaluated for it
      // can go at once: a LOOP of many leaves would otherwise hold every
      // repetition's terms until the end of the run.
      TermScope scope;
      this->evaluateLeaf(parentGroup, copy);
    } else {
      this->evaluateLeaf(parentGroup, copy);
    }
  }

  void write(SceneWriter& out) override {
    out.openNode(this->writtenName(), Derived::kClassName);
    if constexpr (kIsGroup) {
      NodeVisit visit(this);
      this->writeFields(out);
      BlankLine blank = Derived::kBlankLine;
      if (blank == BlankLine::kAlways || (blank == BlankLine::kIfChildren && this->getNumChildren() > 0)) {
        out.character('\n');
      }
      this->writeChildren(out);
    } else {
      // A leaf is not pushed: nothing below it looks for enclosing nodes.
      this->parent = theNodeStack.top();
      this->writeFields(out);
    }
    out.closeNode();
  }

  bool readInstance(QvSceneInput* in) override {
    if constexpr (kIsGroup) {
      return readGroupBody(in, this);
    } else {
      return readLeafBody(in, this);
    }
  }

  void check() override {
    if constexpr (kIsGroup) {
      QvGroupNode::check();
    } else {
      this->checkFields();
    }
  }

  // The class's shared information, its field table included.
  static NodeClass& nodeClass() {
    static NodeClass info(Derived::kClassName);
    return info;
  }

 protected:
  QvNode* newInstance() override { return new Derived(); }
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSTANDARDNODE_H
