// The base of every node that holds children after its fields.  It reads
// the children, hands each pass down to them in order and, when copied,
// copies the whole subtree.
#ifndef LUMERIC_SCENE_QVGROUPNODE_H
#define LUMERIC_SCENE_QVGROUPNODE_H

#include "scene/QvNode.h"
#include "scene/QvNodeList.h"

namespace lumeric {

class QvGroupNode : public QvNode {
 public:
  QvGroupNode() = default;
  ~QvGroupNode() override;

  bool isGroup() const override { return true; }
  // Evaluates the children in place, or adds an evaluated copy of the whole
  // subtree to `parentGroup`.  Children appended while this runs are visited too.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  void bindParents() override;
  // The plain group form: opening line, children, closing line.
  void write(SceneWriter& out) override;
  // The fields' checks, then the children's.
  void check() override;

  virtual QvNodeList* getChildren() { return &children; }

  int getNumChildren() const { return children.getLength(); }
  QvNode* getChild(int index) const { return children.get(index); }
  int addChild(QvNode* child) { return children.append(child); }
  void insertChild(QvNode* child, int index) { children.insert(child, index); }
  int findChild(const QvNode* child) const { return children.find(child); }
  // Inserts the nodes of `nodes`, in order, before `index` (-1 appends).
  void insertChildren(const QvNodeList& nodes, int index) { children.insertAll(nodes, index); }
  // findChild, answered at once for the child this group is evaluating.
  int indexOfChild(const QvNode* child) const;

 protected:
  // The children of evaluate(): in place, or copied under `copy`.
  void evaluateChildren(QvGroupNode* target, bool copy);
  // Writes the children from index `first` on, in order.
  void writeChildren(SceneWriter& out, int first = 0);
  void bindChildren();

  QvNodeList children;

 private:
  // The index of the child evaluateChildren is visiting; a hint only.
  int evaluatingIndex_ = -1;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVGROUPNODE_H
