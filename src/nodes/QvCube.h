// A box centred at the origin.
#ifndef LUMERIC_NODES_QVCUBE_H
#define LUMERIC_NODES_QVCUBE_H

#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvCube : public QvStandardNode<QvCube> {
 public:
  static constexpr const char* kClassName = "Cube";

  QvCube();

  QvSFFloat width;
  QvSFFloat height;
  QvSFFloat depth;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVCUBE_H
