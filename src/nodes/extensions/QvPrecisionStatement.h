// PRECISION: sets the step to which every written number is rounded.  It
// acts in every pass, so the last one in document order is in force when
// writing starts, and each one from its place on while writing.
#ifndef LUMERIC_NODES_EXTENSIONS_QVPRECISIONSTATEMENT_H
#define LUMERIC_NODES_EXTENSIONS_QVPRECISIONSTATEMENT_H

#include "nodes/extensions/QvStatementNode.h"

namespace lumeric {

class QvPrecisionStatement : public QvStatementNode {
 public:
  static constexpr const char* kClassName = "PRECISION";
  const char* getClassName() const override { return kClassName; }
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  void bindParents() override;
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;

 private:
  void setQuantum();

  FieldExpression expression_;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVPRECISIONSTATEMENT_H
