#include "fields/QvSFFloat.h"

namespace lumeric {

template class SFNumberField<QvSFFloat, QvSFFloatTraits>;

}  // namespace lumeric
