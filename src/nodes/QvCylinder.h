// A capped cylinder along the y axis.
#ifndef LUMERIC_NODES_QVCYLINDER_H
#define LUMERIC_NODES_QVCYLINDER_H

#include "fields/QvSFBitMask.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvCylinder : public QvStandardNode<QvCylinder> {
 public:
  static constexpr const char* kClassName = "Cylinder";

  QvCylinder();

  QvSFBitMask parts;
  QvSFFloat radius;
  QvSFFloat height;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVCYLINDER_H
