#include "nodes/QvPointSet.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvPointSet::QvPointSet() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("startIndex", startIndex).setDefault(0);
  fields.add("numPoints", numPoints).setDefault(-1);
}

}  // namespace lumeric
