#include "core/QvNameTable.h"

namespace lumeric {

QvNameTable::~QvNameTable() {
  lists_.forEachValue([](NodeList* list) { delete list; });
}

void QvNameTable::add(QvAtom name, QvNode* node) {
  NodeList* list = lists_.find(name);
  if (list == nullptr) {
    list = new NodeList();
    lists_.enter(name, list);
  }
  list->append(node);
}

bool QvNameTable::remove(QvAtom name, QvNode* node) {
  NodeList* list = lists_.find(name);
  // Nodes die in about the reverse order of their naming (a group releases
  // its children last first), so the search starts at the end of the list.
  int index = list == nullptr ? -1 : list->findLast(node);
  if (index < 0) return false;
  list->remove(index);
  return true;
}

}  // namespace lumeric
