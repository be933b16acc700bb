#include "nodes/QvInfo.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvInfo::QvInfo() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("string", string).setDefault("<Undefined info>");
}

}  // namespace lumeric
