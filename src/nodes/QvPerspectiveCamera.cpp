#include "nodes/QvPerspectiveCamera.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvPerspectiveCamera::QvPerspectiveCamera() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("position", position).setDefault(0, 0, 1);
  fields.add("orientation", orientation).setDefault(0, 0, 1, 0);
  fields.add("focalDistance", focalDistance).setDefault(5);
  fields.add("heightAngle", heightAngle).setDefault(0.7853982f);
}

}  // namespace lumeric
