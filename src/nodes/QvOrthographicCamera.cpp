#include "nodes/QvOrthographicCamera.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvOrthographicCamera::QvOrthographicCamera() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("position", position).setDefault(0, 0, 1);
  fields.add("orientation", orientation).setDefault(0, 0, 1, 0);
  fields.add("focalDistance", focalDistance).setDefault(5);
  fields.add("height", height).setDefault(2);
}

}  // namespace lumeric
