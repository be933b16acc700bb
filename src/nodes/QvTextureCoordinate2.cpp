#include "nodes/QvTextureCoordinate2.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvTextureCoordinate2::QvTextureCoordinate2() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("point", point).setDefault(0, 0);
}

}  // namespace lumeric
