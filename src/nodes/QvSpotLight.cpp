#include "nodes/QvSpotLight.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvSpotLight::QvSpotLight() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("on", on).setDefault(true);
  fields.add("intensity", intensity).setDefault(1);
  fields.add("color", color).setDefault(1, 1, 1);
  fields.add("location", location).setDefault(0, 0, 1);
  fields.add("direction", direction).setDefault(0, 0, -1);
  fields.add("dropOffRate", dropOffRate).setDefault(0);
  fields.add("cutOffAngle", cutOffAngle).setDefault(0.7853982f);
}

}  // namespace lumeric
