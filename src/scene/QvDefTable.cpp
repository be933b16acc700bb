#include "scene/QvDefTable.h"

#include "scene/QvNode.h"

namespace lumeric {

QvDefTable::~QvDefTable() {
  for (QvNode* node : held_) node->unref();
}

bool QvDefTable::addName(QvAtom name, QvNode* node) {
  node->ref();
  held_.push_back(node);
  bool wasDefined = !table_.enter(name, node);
  node->setName(name, wasDefined);
  return wasDefined;
}

QvNode* QvDefTable::findName(QvAtom name) const {
  return table_.find(name);
}

}  // namespace lumeric
