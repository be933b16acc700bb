// PRINT: reports the value of an expression to the host, in the
// evaluation pass and again in the write pass.
#ifndef LUMERIC_NODES_EXTENSIONS_QVPRINTSTATEMENT_H
#define LUMERIC_NODES_EXTENSIONS_QVPRINTSTATEMENT_H

#include "nodes/extensions/QvStatementNode.h"

namespace lumeric {

class QvPrintStatement : public QvStatementNode {
 public:
  static constexpr const char* kClassName = "PRINT";
  const char* getClassName() const override { return kClassName; }
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;

 private:
  // "TEXT is VALUE" for a scalar, else an error.
  void report();

  FieldExpression expression_;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVPRINTSTATEMENT_H
