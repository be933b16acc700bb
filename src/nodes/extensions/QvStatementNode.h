// The base of the statements of the extended language (SET, APPEND,
// DECLARE, PRINT, PRECISION, OUTPUT_TO, USE): nodes without fields and
// without braces that read their own syntax after the keyword.
#ifndef LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H
#define LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H

#include <string>

#include "reader/FieldExpression.h"
#include "reader/NodeReader.h"
#include "reader/QvNode.h"

namespace lumeric {

class QvStatementNode : public QvNode {
 public:
  QvFieldTable* getFieldTable() override { return nullptr; }
  void evaluate(QvGroupNode*, bool) override {}
  void write(FILE*) override {}
  void check() override {}

 protected:
  QvStatementNode() { isBuiltIn = 0; }

  // One value text, or an empty text at the end of the file.
  static std::string readWord(QvSceneInput* in);
  // Records the enclosing node, pushes this statement, runs `body`, pops.
  template <typename Body>
  void visit(Body body);
};

}  // namespace lumeric

#include "driver/QvContext.h"

namespace lumeric {

template <typename Body>
void QvStatementNode::visit(Body body) {
  parent = theContext.topNode();
  theContext.pushNode(this);
  body();
  theContext.popNode();
}

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H
