// A parallel-projection camera.
#ifndef LUMERIC_NODES_QVORTHOGRAPHICCAMERA_H
#define LUMERIC_NODES_QVORTHOGRAPHICCAMERA_H

#include "fields/QvSFFloat.h"
#include "fields/QvSFRotation.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvOrthographicCamera : public QvStandardNode<QvOrthographicCamera> {
 public:
  static constexpr const char* kClassName = "OrthographicCamera";

  QvOrthographicCamera();

  QvSFVec3f position;
  QvSFRotation orientation;
  QvSFFloat focalDistance;
  QvSFFloat height;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVORTHOGRAPHICCAMERA_H
