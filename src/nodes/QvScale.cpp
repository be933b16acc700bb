#include "nodes/QvScale.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvScale::QvScale() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("scaleFactor", scaleFactor).setDefault(1, 1, 1);
}

}  // namespace lumeric
