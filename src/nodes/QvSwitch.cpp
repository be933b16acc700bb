#include "nodes/QvSwitch.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvSwitch::QvSwitch() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("whichChild", whichChild).setDefault(-1);
}

}  // namespace lumeric
