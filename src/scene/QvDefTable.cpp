#include "scene/QvDefTable.h"

#include "scene/QvNode.h"

namespace lumeric {

bool QvDefTable::addName(QvAtom name, QvNode* node) {
  bool wasDefined = !table_.enter(name, node);
  node->setName(name, wasDefined);
  return wasDefined;
}

QvNode* QvDefTable::findName(QvAtom name) const {
  return table_.find(name);
}

}  // namespace lumeric
