// The base of the statements of the extended language (SET, APPEND,
// DECLARE, PRINT, PRECISION, OUTPUT_TO, USE): nodes without fields and
// without braces that read their own syntax after the keyword.
#ifndef LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H
#define LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H

#include <string>

#include "scene/FieldExpression.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/QvNode.h"
#include "writer/SceneWriter.h"

namespace lumeric {

class QvStatementNode : public QvNode {
 public:
  QvFieldTable* getFieldTable() override { return nullptr; }
  void evaluate(QvGroupNode*, bool) override {}
  void write(SceneWriter&) override {}
  void check() override {}
  bool readInstance(QvSceneInput*) override { return true; }

 protected:
  QvStatementNode() { isBuiltIn = 0; }

  // One value text, or an empty text at the end of the file.
  static std::string readWord(QvSceneInput* in);
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVSTATEMENTNODE_H
