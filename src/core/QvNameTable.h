// The named nodes of a run: for each name, the nodes that carry it, in the
// order they were named.  A node enters itself when it is named and leaves
// when it is renamed or dies; the table holds no reference on them.
#ifndef LUMERIC_CORE_QVNAMETABLE_H
#define LUMERIC_CORE_QVNAMETABLE_H

#include "core/AtomMap.h"
#include "core/PointerList.h"
#include "core/QvAtom.h"

namespace lumeric {

class QvNode;

class QvNameTable {
 public:
  QvNameTable() = default;
  ~QvNameTable();
  QvNameTable(const QvNameTable&) = delete;
  QvNameTable& operator=(const QvNameTable&) = delete;

  // Appends `node` to the nodes named `name`.
  void add(QvAtom name, QvNode* node);
  // Removes the last entry of `node` under `name`; false when there is
  // none.
  bool remove(QvAtom name, QvNode* node);

 private:
  using NodeList = PointerList<QvNode>;
  AtomMap<NodeList> lists_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVNAMETABLE_H
