// The current list of normal vectors.
#ifndef LUMERIC_NODES_QVNORMAL_H
#define LUMERIC_NODES_QVNORMAL_H

#include "fields/QvMFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvNormal : public QvStandardNode<QvNormal> {
 public:
  static constexpr const char* kClassName = "Normal";

  QvNormal();

  QvMFVec3f vector;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVNORMAL_H
