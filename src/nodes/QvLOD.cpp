#include "nodes/QvLOD.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvLOD::QvLOD() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("range", range).setNum(0);
  fields.add("center", center).setDefault(0, 0, 0);
}

}  // namespace lumeric
