// A node for expression tests whose fields are TestFields added by name.
#ifndef LUMERIC_TESTS_EXPR_TESTNODE_H
#define LUMERIC_TESTS_EXPR_TESTNODE_H

#include "expr/TestField.h"
#include "scene/QvFieldTable.h"
#include "scene/QvNode.h"

namespace lumeric {

class TestNode : public QvNode {
 public:
  TestNode() : table_(true) { line = 20; }

  // Adds a field holding `text`; the node owns it.
  TestField* addField(const char* fieldName, const char* text);

  QvFieldTable* getFieldTable() override { return &table_; }
  void evaluate(QvGroupNode*, bool) override {}
  void write(SceneWriter&) override {}
  bool readInstance(QvSceneInput*) override { return true; }
  const char* getClassName() const override { return "TestNode"; }

 private:
  QvFieldTable table_;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_EXPR_TESTNODE_H
