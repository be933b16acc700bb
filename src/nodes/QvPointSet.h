// Points at the current coordinates.
#ifndef LUMERIC_NODES_QVPOINTSET_H
#define LUMERIC_NODES_QVPOINTSET_H

#include "fields/QvSFLong.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvPointSet : public QvStandardNode<QvPointSet> {
 public:
  static constexpr const char* kClassName = "PointSet";

  QvPointSet();

  QvSFLong startIndex;
  QvSFLong numPoints;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVPOINTSET_H
