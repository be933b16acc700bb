// The current list of 3D coordinates.
#ifndef LUMERIC_NODES_QVCOORDINATE3_H
#define LUMERIC_NODES_QVCOORDINATE3_H

#include "fields/QvMFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvCoordinate3 : public QvStandardNode<QvCoordinate3> {
 public:
  static constexpr const char* kClassName = "Coordinate3";

  QvCoordinate3();

  QvMFVec3f point;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVCOORDINATE3_H
