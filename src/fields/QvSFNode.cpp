#include "fields/QvSFNode.h"

namespace lumeric {

template class SFStringField<QvSFNode, QvSFNodeTraits>;

}  // namespace lumeric
