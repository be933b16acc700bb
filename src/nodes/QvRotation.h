// A rotation of the following nodes.
#ifndef LUMERIC_NODES_QVROTATION_H
#define LUMERIC_NODES_QVROTATION_H

#include "fields/QvSFRotation.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvRotation : public QvStandardNode<QvRotation> {
 public:
  static constexpr const char* kClassName = "Rotation";

  QvRotation();

  QvSFRotation rotation;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVROTATION_H
