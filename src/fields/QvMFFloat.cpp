#include "fields/QvMFFloat.h"

namespace lumeric {

template class MFNumberField<QvMFFloat, QvMFFloatTraits>;

}  // namespace lumeric
