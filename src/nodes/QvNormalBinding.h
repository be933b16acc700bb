// How normals are bound to shapes.
#ifndef LUMERIC_NODES_QVNORMALBINDING_H
#define LUMERIC_NODES_QVNORMALBINDING_H

#include "fields/QvSFEnum.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvNormalBinding : public QvStandardNode<QvNormalBinding> {
 public:
  static constexpr const char* kClassName = "NormalBinding";

  QvNormalBinding();

  QvSFEnum value;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVNORMALBINDING_H
