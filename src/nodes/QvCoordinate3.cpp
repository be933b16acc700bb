#include "nodes/QvCoordinate3.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvCoordinate3::QvCoordinate3() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("point", point).setDefault(0, 0, 0);
}

}  // namespace lumeric
