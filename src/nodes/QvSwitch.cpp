#include "nodes/QvSwitch.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvSwitch::QvSwitch() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("whichChild", whichChild).setDefault(-1);
}

}  // namespace lumeric
