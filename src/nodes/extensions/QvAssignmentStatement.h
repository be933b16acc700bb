// SET, APPEND and DECLARE: two words captured behind the lower-case keyword
// ("set Ball1:radius 2*r") and executed by the expression language each
// time the statement is evaluated.  They write nothing.
#ifndef LUMERIC_NODES_EXTENSIONS_QVASSIGNMENTSTATEMENT_H
#define LUMERIC_NODES_EXTENSIONS_QVASSIGNMENTSTATEMENT_H

#include "nodes/extensions/QvStatementNode.h"

namespace lumeric {

class QvAssignmentStatement : public QvStatementNode {
 public:
  // The captured text, keyword included, is shorter than this.
  static constexpr int kMaxText = 512;

  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;

  const FieldExpression& expression() const { return expression_; }

 protected:
  // `keyword` is the lower-case form that starts the text, e.g. "set".
  explicit QvAssignmentStatement(const char* keyword) : keyword_(keyword) {}

 private:
  const char* keyword_;
  FieldExpression expression_;
};

class QvSetStatement : public QvAssignmentStatement {
 public:
  QvSetStatement() : QvAssignmentStatement("set") {}
  static constexpr const char* kClassName = "SET";
  const char* getClassName() const override { return kClassName; }
};

class QvAppendStatement : public QvAssignmentStatement {
 public:
  QvAppendStatement() : QvAssignmentStatement("append") {}
  static constexpr const char* kClassName = "APPEND";
  const char* getClassName() const override { return kClassName; }
};

class QvDeclareStatement : public QvAssignmentStatement {
 public:
  QvDeclareStatement() : QvAssignmentStatement("declare") {}
  static constexpr const char* kClassName = "DECLARE";
  const char* getClassName() const override { return kClassName; }
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVASSIGNMENTSTATEMENT_H
