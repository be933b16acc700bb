#include "nodes/QvScale.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvScale::QvScale() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("scaleFactor", scaleFactor).setDefault(1, 1, 1);
}

}  // namespace lumeric
