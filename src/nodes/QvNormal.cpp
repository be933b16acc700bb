#include "nodes/QvNormal.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvNormal::QvNormal() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("vector", vector).setDefault(0, 0, 1);
}

}  // namespace lumeric
