#include "scene/QvNodeClass.h"

#include <vector>

#include "scene/QvFieldTable.h"

namespace lumeric {

namespace {

std::vector<QvNodeClass*>& classesWithTables() {
  static std::vector<QvNodeClass*> classes;
  return classes;
}

}  // namespace

bool QvNodeClass::beginInstance() {
  if (table_ != nullptr) return false;
  table_ = new QvFieldTable(false);
  if (!registered_) {
    classesWithTables().push_back(this);
    registered_ = true;
  }
  return true;
}

void QvNodeClass::destroyAllTables() {
  for (QvNodeClass* nodeClass : classesWithTables()) {
    delete nodeClass->table_;
    nodeClass->table_ = nullptr;
  }
}

}  // namespace lumeric
