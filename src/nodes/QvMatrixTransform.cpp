#include "nodes/QvMatrixTransform.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvMatrixTransform::QvMatrixTransform() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("matrix", matrix).setIdentityDefault();
}

}  // namespace lumeric
