#include "nodes/QvPointSet.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvPointSet::QvPointSet() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("startIndex", startIndex).setDefault(0);
  fields.add("numPoints", numPoints).setDefault(-1);
}

}  // namespace lumeric
