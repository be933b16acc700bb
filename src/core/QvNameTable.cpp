#include "core/QvNameTable.h"

namespace lumeric {

void QvNameTable::add(QvAtom name, QvNode* node, int32_t* slot) {
  *slot = static_cast<int32_t>(entries_.size());
  entries_.push_back(Entry{node, slot, name});
}

bool QvNameTable::remove(QvAtom name, QvNode* node, int32_t* slot) {
  if (*slot < 0 || static_cast<size_t>(*slot) >= entries_.size()) return false;
  Entry& entry = entries_[static_cast<size_t>(*slot)];
  if (entry.node != node || entry.slot != slot || !(entry.name == name)) return false;
  Entry& last = entries_.back();
  *last.slot = *slot;
  entry = last;
  entries_.pop_back();
  *slot = -1;
  return true;
}

}  // namespace lumeric
