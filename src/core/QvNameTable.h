// The named nodes of a run: for each name, the nodes that carry it.  A node
// enters itself when it is named and leaves when it is renamed or dies; the
// table holds no reference on them.
//
// Copies die in any order (a DEF table releases them first named first, a
// group last child first), so every operation takes constant time: each
// node keeps the slot of its entry, and a removal moves the list's last
// entry into the freed slot.  The order of a list is therefore not the
// order of naming; nothing reads it.
#ifndef LUMERIC_CORE_QVNAMETABLE_H
#define LUMERIC_CORE_QVNAMETABLE_H

#include <cstdint>
#include <vector>

#include "core/AtomMap.h"
#include "core/QvAtom.h"

namespace lumeric {

class QvNode;

class QvNameTable {
 public:
  QvNameTable() = default;
  ~QvNameTable();
  QvNameTable(const QvNameTable&) = delete;
  QvNameTable& operator=(const QvNameTable&) = delete;

  // Adds `node` to the nodes named `name`; `*slot` receives the place of its
  // entry and is kept up to date while the entry lives.
  void add(QvAtom name, QvNode* node, int32_t* slot);
  // Removes the entry of `node` at `*slot` under `name` and sets `*slot` to
  // -1; false (and nothing changes) when that is not where `node` is.
  bool remove(QvAtom name, QvNode* node, int32_t* slot);

 private:
  struct Entry {
    QvNode* node;
    int32_t* slot;
  };
  using EntryList = std::vector<Entry>;
  AtomMap<EntryList> lists_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVNAMETABLE_H
