#include "nodes/QvCylinder.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvCylinder::QvCylinder() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("parts", parts).setDefault(7);  // ALL
  fields.enumerate(parts, "Part", {{"SIDES", 1}, {"TOP", 2}, {"BOTTOM", 4}, {"ALL", 7}});
  fields.add("radius", radius).setDefault(1);
  fields.add("height", height).setDefault(2);
}

}  // namespace lumeric
