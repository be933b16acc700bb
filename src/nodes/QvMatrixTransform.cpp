#include "nodes/QvMatrixTransform.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvMatrixTransform::QvMatrixTransform() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("matrix", matrix).setIdentityDefault();
}

}  // namespace lumeric
