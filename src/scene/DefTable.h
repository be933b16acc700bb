// The DEF names of the scene being read: each name stands for the node
// defined last under it.  The input being read owns the table; the run state
// points at it so that name look-ups and copies of named nodes reach it.
//
// The table holds a reference on every node entered in it until the table
// is destroyed, so no entry ever points at a freed node: a node whose
// reading failed is dropped by its reader, yet later statements and
// references may still name it.
#ifndef LUMERIC_SCENE_DEFTABLE_H
#define LUMERIC_SCENE_DEFTABLE_H

#include <vector>

#include "core/QvAtom.h"
#include "core/AtomMap.h"

namespace lumeric {

class QvNode;

class DefTable {
 public:
  DefTable() = default;
  // Drops the references the table holds; nodes nobody else holds die.
  ~DefTable();
  DefTable(const DefTable&) = delete;
  DefTable& operator=(const DefTable&) = delete;

  // Enters `node` under `name` (replacing an earlier node), takes a
  // reference on it and names the node.  Tells whether the table already
  // held that name.
  bool addName(QvAtom name, QvNode* node);
  // The node defined last under `name`, or null.
  QvNode* findName(QvAtom name) const;

 private:
  AtomMap<QvNode> table_;
  // One reference per entry made, replaced entries included: a replaced
  // node may still be in use by the evaluation that replaced it.
  std::vector<QvNode*> held_;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_DEFTABLE_H
