#include "nodes/QvSeparator.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvSeparator::QvSeparator() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("renderCulling", renderCulling).setDefault(2);  // AUTO
  fields.enumerate(renderCulling, "CullEnabled", {{"ON", 1}, {"OFF", 0}, {"AUTO", 2}});
}

}  // namespace lumeric
