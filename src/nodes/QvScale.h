// A scaling of the following nodes.
#ifndef LUMERIC_NODES_QVSCALE_H
#define LUMERIC_NODES_QVSCALE_H

#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvScale : public QvStandardNode<QvScale> {
 public:
  static constexpr const char* kClassName = "Scale";

  QvScale();

  QvSFVec3f scaleFactor;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSCALE_H
