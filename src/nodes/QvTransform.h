// A general transformation of the following nodes.
#ifndef LUMERIC_NODES_QVTRANSFORM_H
#define LUMERIC_NODES_QVTRANSFORM_H

#include "fields/QvSFRotation.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTransform : public QvStandardNode<QvTransform> {
 public:
  static constexpr const char* kClassName = "Transform";

  QvTransform();

  QvSFVec3f translation;
  QvSFRotation rotation;
  QvSFVec3f scaleFactor;
  QvSFRotation scaleOrientation;
  QvSFVec3f center;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTRANSFORM_H
