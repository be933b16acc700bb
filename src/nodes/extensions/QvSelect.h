// SELECT: keeps the child its whichChild field chooses and drops the
// others, at translation time: -1 chooses none, -3 all, other values wrap
// around the number of children.  Only the chosen children's text reaches
// the output, at the SELECT's place; the SELECT itself leaves no trace.
#ifndef LUMERIC_NODES_EXTENSIONS_QVSELECT_H
#define LUMERIC_NODES_EXTENSIONS_QVSELECT_H

#include "scene/QvDeclaredFieldsNode.h"

namespace lumeric {

class QvSelect : public QvDeclaredFieldsNode {
 public:
  QvSelect() = default;

  static constexpr const char* kClassName = "SELECT";
  const char* getClassName() const override { return kClassName; }
  // In place: every child, chosen or not, so statements in all of them
  // run.  Copied: copies of the chosen children go straight into
  // `parent`; the SELECT makes no copy of itself.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  // The chosen children, with the choice read again now.
  void write(SceneWriter& out) override;
  // The body of a group with a fields specification.
  bool readInstance(QvSceneInput* in) override;

 private:
  // What one operation chose.  kIndex names one child in `index`.
  enum class Choice { kNone, kAll, kIndex };
  // whichChild's value; false after posting that it is not defined.
  bool readChoice(double& value);
  // The value reduced to a choice the operation's own way; posts the
  // illegal-value error and gives kNone for what chooses nothing valid.
  Choice choose(double reduced, int& index);
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVSELECT_H
