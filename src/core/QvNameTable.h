// The named nodes of a run: every node that carries a name, with that
// name.  A node enters itself when it is named and leaves when it is renamed
// or dies; the table holds no reference on it.  Nothing looks nodes up by
// name here (the DEF table does that); the table lets a node that leaves
// check that it is registered as it believes.
//
// Copies die in any order (a DEF table releases them first named first, a
// group last child first), and a LOOP may name a million of them, so every
// operation takes constant time and no hashing: each node keeps the slot of
// its entry, and a removal moves the last entry into the freed slot.
#ifndef LUMERIC_CORE_QVNAMETABLE_H
#define LUMERIC_CORE_QVNAMETABLE_H

#include <cstdint>
#include <vector>

#include "core/QvAtom.h"

namespace lumeric {

class QvNode;

class QvNameTable {
 public:
  // Adds `node` under `name`; `*slot` receives the place of its entry and
  // is kept up to date while the entry lives.
  void add(QvAtom name, QvNode* node, int32_t* slot);
  // Removes the entry of `node` under `name` at `*slot` and sets `*slot` to
  // -1; false (and nothing changes) when that is not where `node` is.
  bool remove(QvAtom name, QvNode* node, int32_t* slot);

 private:
  struct Entry {
    QvNode* node;
    int32_t* slot;
    QvAtom name;
  };
  std::vector<Entry> entries_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVNAMETABLE_H
