#include "fields/QvSFBool.h"

namespace lumeric {

template class SFNumberField<QvSFBool, QvSFBoolTraits>;

}  // namespace lumeric
