#include "core/QvNameTable.h"

namespace lumeric {

QvNameTable::~QvNameTable() {
  lists_.forEachValue([](EntryList* list) { delete list; });
}

void QvNameTable::add(QvAtom name, QvNode* node, int32_t* slot) {
  EntryList* list = lists_.find(name);
  if (list == nullptr) {
    list = new EntryList();
    lists_.enter(name, list);
  }
  *slot = static_cast<int32_t>(list->size());
  list->push_back(Entry{node, slot});
}

bool QvNameTable::remove(QvAtom name, QvNode* node, int32_t* slot) {
  EntryList* list = lists_.find(name);
  if (list == nullptr || *slot < 0 || static_cast<size_t>(*slot) >= list->size()) return false;
  Entry& entry = (*list)[static_cast<size_t>(*slot)];
  if (entry.node != node || entry.slot != slot) return false;
  Entry& last = list->back();
  *last.slot = *slot;
  entry = last;
  list->pop_back();
  *slot = -1;
  return true;
}

}  // namespace lumeric
