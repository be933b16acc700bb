// The DEF names of the scene being read: each name stands for the node
// defined last under it.  The input being read owns the table; the run state
// points at it so that name look-ups and copies of named nodes reach it.
#ifndef LUMERIC_SCENE_QVDEFTABLE_H
#define LUMERIC_SCENE_QVDEFTABLE_H

#include "core/QvAtom.h"
#include "core/AtomMap.h"

namespace lumeric {

class QvNode;

class QvDefTable {
 public:
  QvDefTable() = default;
  QvDefTable(const QvDefTable&) = delete;
  QvDefTable& operator=(const QvDefTable&) = delete;

  // Enters `node` under `name` (replacing an earlier node) and names the
  // node.  Tells whether the table already held that name.
  bool addName(QvAtom name, QvNode* node);
  // The node defined last under `name`, or null.
  QvNode* findName(QvAtom name) const;

 private:
  AtomMap<QvNode> table_;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVDEFTABLE_H
