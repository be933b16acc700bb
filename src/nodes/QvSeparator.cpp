#include "nodes/QvSeparator.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvSeparator::QvSeparator() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("renderCulling", renderCulling).setDefault(2);  // AUTO
  fields.enumerate(renderCulling, "CullEnabled", {{"ON", 1}, {"OFF", 0}, {"AUTO", 2}});
}

}  // namespace lumeric
