#include "nodes/QvTransform.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvTransform::QvTransform() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("translation", translation).setDefault(0, 0, 0);
  fields.add("rotation", rotation).setDefault(0, 0, 1, 0);
  fields.add("scaleFactor", scaleFactor).setDefault(1, 1, 1);
  fields.add("scaleOrientation", scaleOrientation).setDefault(0, 0, 1, 0);
  fields.add("center", center).setDefault(0, 0, 0);
}

}  // namespace lumeric
