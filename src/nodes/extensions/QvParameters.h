// PARAMETERS: a group that declares named values for its children and
// leaves no line of its own in the output, only its children in its
// place.  A LOOP also makes one, without fields or name, to hold each of
// its repetitions.
#ifndef LUMERIC_NODES_EXTENSIONS_QVPARAMETERS_H
#define LUMERIC_NODES_EXTENSIONS_QVPARAMETERS_H

#include "scene/QvDeclaredFieldsNode.h"

namespace lumeric {

class QvParameters : public QvDeclaredFieldsNode {
 public:
  QvParameters() = default;

  static constexpr const char* kClassName = "PARAMETERS";
  const char* getClassName() const override { return kClassName; }
  // In place: the children, with this node on the node stack so their
  // expressions find its fields.  Copied: a plain Group (named as this
  // node is) added to `parent`, holding copies of the children; the
  // declared fields are not copied, the children's copies already hold
  // evaluated values.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  // The children only, at this node's indentation.
  void write(SceneWriter& out) override;
  // The body of a group with a fields specification.
  bool readInstance(QvSceneInput* in) override;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVPARAMETERS_H
