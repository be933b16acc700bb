#include "nodes/QvTransformSeparator.h"

namespace lumeric {

QvTransformSeparator::QvTransformSeparator() { nodeClass().beginInstance(); }

}  // namespace lumeric
