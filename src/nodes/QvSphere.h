// A sphere centred at the origin.
#ifndef LUMERIC_NODES_QVSPHERE_H
#define LUMERIC_NODES_QVSPHERE_H

#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvSphere : public QvStandardNode<QvSphere> {
 public:
  static constexpr const char* kClassName = "Sphere";

  QvSphere();

  QvSFFloat radius;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSPHERE_H
