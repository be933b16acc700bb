// Hints about the shapes that follow.
#ifndef LUMERIC_NODES_QVSHAPEHINTS_H
#define LUMERIC_NODES_QVSHAPEHINTS_H

#include "fields/QvSFEnum.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvShapeHints : public QvStandardNode<QvShapeHints> {
 public:
  static constexpr const char* kClassName = "ShapeHints";

  QvShapeHints();

  QvSFEnum vertexOrdering;
  QvSFEnum shapeType;
  QvSFEnum faceType;
  QvSFFloat creaseAngle;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSHAPEHINTS_H
