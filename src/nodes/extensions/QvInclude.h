// INCLUDE: reads another scene file at its place; that file's root node
// becomes the statement's only child and stands in the output in its place.
// A relative name that does not open as written is looked for beside the
// including file, then in the run's include directories.
#ifndef LUMERIC_NODES_EXTENSIONS_QVINCLUDE_H
#define LUMERIC_NODES_EXTENSIONS_QVINCLUDE_H

#include "scene/QvFieldTable.h"
#include "scene/QvGroupNode.h"

namespace lumeric {

class FieldExpression;

class QvInclude : public QvGroupNode {
 public:
  QvInclude() { isBuiltIn = 0; }

  QvFieldTable* getFieldTable() override { return &fields_; }
  static constexpr const char* kClassName = "INCLUDE";
  const char* getClassName() const override { return kClassName; }
  // Passes the pass on to the included root with this statement's own
  // arguments, so copies made from it go to the group holding the INCLUDE.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  // The included root only, with no line of its own.
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;

  // Finds and reads the file named by `nameText` through `in`; its root, or
  // null.
  static QvNode* includeFile(FieldExpression& nameText, QvSceneInput* in);

 private:
  QvFieldTable fields_{true};
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVINCLUDE_H
