// OUTPUT_TO: names the output file while the scene is read.  The first one
// read wins; its argument is a file name, never an expression.
#ifndef LUMERIC_NODES_EXTENSIONS_QVOUTPUTTOSTATEMENT_H
#define LUMERIC_NODES_EXTENSIONS_QVOUTPUTTOSTATEMENT_H

#include "nodes/extensions/QvStatementNode.h"

namespace lumeric {

class QvOutputToStatement : public QvStatementNode {
 public:
  static constexpr const char* kClassName = "OUTPUT_TO";
  const char* getClassName() const override { return kClassName; }
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVOUTPUTTOSTATEMENT_H
