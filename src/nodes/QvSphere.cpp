#include "nodes/QvSphere.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvSphere::QvSphere() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("radius", radius).setDefault(1);
}

}  // namespace lumeric
