#include "nodes/QvRotation.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvRotation::QvRotation() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("rotation", rotation).setDefault(0, 0, 1, 0);
}

}  // namespace lumeric
