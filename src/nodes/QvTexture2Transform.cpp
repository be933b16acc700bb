#include "nodes/QvTexture2Transform.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvTexture2Transform::QvTexture2Transform() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("translation", translation).setDefault(0, 0);
  fields.add("rotation", rotation).setDefault(0);
  fields.add("scaleFactor", scaleFactor).setDefault(1, 1);
  fields.add("center", center).setDefault(0, 0);
}

}  // namespace lumeric
