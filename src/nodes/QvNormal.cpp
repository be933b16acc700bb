#include "nodes/QvNormal.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvNormal::QvNormal() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("vector", vector).setDefault(0, 0, 1);
}

}  // namespace lumeric
