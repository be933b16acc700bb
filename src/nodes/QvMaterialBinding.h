// How materials are bound to shapes.
#ifndef LUMERIC_NODES_QVMATERIALBINDING_H
#define LUMERIC_NODES_QVMATERIALBINDING_H

#include "fields/QvSFEnum.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvMaterialBinding : public QvStandardNode<QvMaterialBinding> {
 public:
  static constexpr const char* kClassName = "MaterialBinding";

  QvMaterialBinding();

  QvSFEnum value;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVMATERIALBINDING_H
