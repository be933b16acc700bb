#include "nodes/QvCoordinate3.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvCoordinate3::QvCoordinate3() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("point", point).setDefault(0, 0, 0);
}

}  // namespace lumeric
