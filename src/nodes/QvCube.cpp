#include "nodes/QvCube.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvCube::QvCube() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("width", width).setDefault(2);
  fields.add("height", height).setDefault(2);
  fields.add("depth", depth).setDefault(2);
}

}  // namespace lumeric
