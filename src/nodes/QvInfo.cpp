#include "nodes/QvInfo.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvInfo::QvInfo() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("string", string).setDefault("<Undefined info>");
}

}  // namespace lumeric
