#include "nodes/QvGroup.h"

namespace lumeric {

QvGroup::QvGroup() { nodeClass().beginInstance(); }

}  // namespace lumeric
