#include "nodes/QvPointLight.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvPointLight::QvPointLight() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("on", on).setDefault(true);
  fields.add("intensity", intensity).setDefault(1);
  fields.add("color", color).setDefault(1, 1, 1);
  fields.add("location", location).setDefault(0, 0, 1);
}

}  // namespace lumeric
