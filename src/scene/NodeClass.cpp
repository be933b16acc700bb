#include "scene/NodeClass.h"

#include <vector>

#include "scene/QvFieldTable.h"

namespace lumeric {

namespace {

std::vector<NodeClass*>& classesWithTables() {
  static std::vector<NodeClass*> classes;
  return classes;
}

}  // namespace

bool NodeClass::beginInstance() {
  if (table_ != nullptr) return false;
  table_ = new QvFieldTable(false);
  if (!registered_) {
    classesWithTables().push_back(this);
    registered_ = true;
  }
  return true;
}

void NodeClass::destroyAllTables() {
  for (NodeClass* nodeClass : classesWithTables()) {
    delete nodeClass->table_;
    nodeClass->table_ = nullptr;
  }
}

}  // namespace lumeric
