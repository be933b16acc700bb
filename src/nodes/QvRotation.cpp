#include "nodes/QvRotation.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvRotation::QvRotation() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("rotation", rotation).setDefault(0, 0, 1, 0);
}

}  // namespace lumeric
