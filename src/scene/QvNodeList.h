// A list of nodes that holds one reference on each node it contains.
#ifndef LUMERIC_SCENE_QVNODELIST_H
#define LUMERIC_SCENE_QVNODELIST_H

#include "scene/QvNode.h"
#include "core/QvPointerList.h"

namespace lumeric {

class QvNodeList {
 public:
  QvNodeList() = default;
  ~QvNodeList() { truncate(0); }
  QvNodeList(const QvNodeList&) = delete;
  QvNodeList& operator=(const QvNodeList&) = delete;

  int getLength() const { return list_.getLength(); }
  QvNode* get(int index) const { return static_cast<QvNode*>(list_.get(index)); }
  // Appends and takes a reference; returns the new index.
  int append(QvNode* node) {
    if (node != nullptr) node->ref();
    list_.append(node);
    return list_.getLength() - 1;
  }
  // Inserts before `index` (-1 or past the end appends), taking a reference.
  void insert(QvNode* node, int index) {
    if (node != nullptr) node->ref();
    list_.insert(node, index);
  }
  // Inserts every node of `nodes`, in order, before `index` (-1 or past
  // the end appends), taking a reference on each; one move of the later
  // entries serves them all.
  void insertAll(const QvNodeList& nodes, int index) {
    for (int i = 0; i < nodes.getLength(); ++i) {
      if (nodes.get(i) != nullptr) nodes.get(i)->ref();
    }
    list_.insert(nodes.list_.items(), nodes.getLength(), index);
  }
  int find(const QvNode* node) const { return list_.find(node); }
  // Releases the nodes from `length` on.
  void truncate(int length) {
    while (list_.getLength() > length && list_.getLength() > 0) {
      QvNode* node = get(list_.getLength() - 1);
      list_.truncate(list_.getLength() - 1);
      if (node != nullptr) node->unref();
    }
  }

 private:
  QvPointerList list_;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVNODELIST_H
