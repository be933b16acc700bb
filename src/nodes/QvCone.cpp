#include "nodes/QvCone.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvCone::QvCone() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("parts", parts).setDefault(3);  // ALL
  fields.enumerate(parts, "Part", {{"SIDES", 1}, {"BOTTOM", 2}, {"ALL", 3}});
  fields.add("bottomRadius", bottomRadius).setDefault(1);
  fields.add("height", height).setDefault(2);
}

}  // namespace lumeric
