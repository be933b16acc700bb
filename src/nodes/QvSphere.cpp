#include "nodes/QvSphere.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvSphere::QvSphere() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("radius", radius).setDefault(1);
}

}  // namespace lumeric
