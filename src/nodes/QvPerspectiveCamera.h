// A perspective camera.
#ifndef LUMERIC_NODES_QVPERSPECTIVECAMERA_H
#define LUMERIC_NODES_QVPERSPECTIVECAMERA_H

#include "fields/QvSFFloat.h"
#include "fields/QvSFRotation.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvPerspectiveCamera : public QvStandardNode<QvPerspectiveCamera> {
 public:
  static constexpr const char* kClassName = "PerspectiveCamera";

  QvPerspectiveCamera();

  QvSFVec3f position;
  QvSFRotation orientation;
  QvSFFloat focalDistance;
  QvSFFloat heightAngle;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVPERSPECTIVECAMERA_H
