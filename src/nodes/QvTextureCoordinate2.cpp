#include "nodes/QvTextureCoordinate2.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvTextureCoordinate2::QvTextureCoordinate2() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("point", point).setDefault(0, 0);
}

}  // namespace lumeric
