// USE: writes a USE reference to a DEF name into the output.  The name is
// an expression, computed when the statement is written.
#ifndef LUMERIC_NODES_EXTENSIONS_QVUSESTATEMENT_H
#define LUMERIC_NODES_EXTENSIONS_QVUSESTATEMENT_H

#include "nodes/extensions/QvStatementNode.h"

namespace lumeric {

class QvUseStatement : public QvStatementNode {
 public:
  // "use " and the name expression are shorter than this.
  static constexpr int kMaxText = 256;

  static constexpr const char* kClassName = "USE";
  const char* getClassName() const override { return kClassName; }
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;
  // The text read: "use " and the name.
  const FieldExpression& expression() const { return expression_; }

 private:
  FieldExpression expression_;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVUSESTATEMENT_H
