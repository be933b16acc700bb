#include "nodes/QvShapeHints.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvShapeHints::QvShapeHints() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("vertexOrdering", vertexOrdering).setDefault(0);  // UNKNOWN_ORDERING
  fields.enumerate(vertexOrdering, "VertexOrdering", {{"UNKNOWN_ORDERING", 0}, {"CLOCKWISE", 1}, {"COUNTERCLOCKWISE", 2}});
  fields.add("shapeType", shapeType).setDefault(0);  // UNKNOWN_SHAPE_TYPE
  fields.enumerate(shapeType, "ShapeType", {{"UNKNOWN_SHAPE_TYPE", 0}, {"SOLID", 1}});
  fields.add("faceType", faceType).setDefault(1);  // CONVEX
  fields.enumerate(faceType, "FaceType", {{"UNKNOWN_FACE_TYPE", 0}, {"CONVEX", 1}});
  fields.add("creaseAngle", creaseAngle).setDefault(0.5);
}

}  // namespace lumeric
