// Used by node constructors: enters each field in the class table while the
// class's first instance of a run is built, and hands enumeration and
// bit-mask fields their class's enumeration.
#ifndef LUMERIC_NODES_FIELDREGISTRAR_H
#define LUMERIC_NODES_FIELDREGISTRAR_H

#include <initializer_list>
#include <utility>

#include "fields/QvSFEnum.h"
#include "scene/QvFieldTable.h"
#include "scene/NodeClass.h"

namespace lumeric {

class QvNode;

class FieldRegistrar {
 public:
  using EnumEntries = std::initializer_list<std::pair<const char*, int>>;

  FieldRegistrar(QvNode* node, NodeClass& nodeClass)
      : node_(node), firstInstance_(nodeClass.beginInstance()), table_(nodeClass.table()) {}

  // Registers `field` under `name` (first instance only) and gives it its
  // node.
  template <class Field>
  Field& add(const char* name, Field& field) {
    if (firstInstance_) table_->addField(node_, name, &field);
    field.setContainer(node_);
    return field;
  }

  // Registers the enumeration `typeName` (first instance only) and gives
  // its entries to `field`; two fields may share one enumeration.
  void enumerate(QvSFEnum& field, const char* typeName, EnumEntries entries) {
    int count = 0;
    const int* values = nullptr;
    const QvAtom* names = nullptr;
    table_->getEnumData(typeName, count, values, names);
    if (firstInstance_ && count == 0) {
      for (const auto& entry : entries) table_->addEnumValue(typeName, entry.first, entry.second);
      table_->getEnumData(typeName, count, values, names);
    }
    field.setEnumData(count, values, names);
  }

 private:
  QvNode* node_;
  bool firstInstance_;
  QvFieldTable* table_;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_FIELDREGISTRAR_H
