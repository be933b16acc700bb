#include "scene/DefTable.h"

#include "scene/QvNode.h"

namespace lumeric {

DefTable::~DefTable() {
  for (QvNode* node : held_) node->unref();
}

bool DefTable::addName(QvAtom name, QvNode* node) {
  node->ref();
  held_.push_back(node);
  bool wasDefined = !table_.enter(name, node);
  node->setName(name, wasDefined);
  return wasDefined;
}

QvNode* DefTable::findName(QvAtom name) const {
  return table_.find(name);
}

}  // namespace lumeric
