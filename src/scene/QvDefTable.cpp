#include "scene/QvDefTable.h"

#include "scene/QvNode.h"

namespace lumeric {

QvDefTable::~QvDefTable() {
  for (QvNode* node : held_) node->unref();
}

bool QvDefTable::addName(QvAtom name, QvNode* node) {
  node->ref();
  held_.push_back(node);
  void* previous = nullptr;
  bool wasDefined = table_.find(name.key(), previous);
  table_.enter(name.key(), node);
  node->setName(name, wasDefined);
  return wasDefined;
}

QvNode* QvDefTable::findName(QvAtom name) const {
  void* node = nullptr;
  table_.find(name.key(), node);
  return static_cast<QvNode*>(node);
}

}  // namespace lumeric
