#include "fields/QvSFLong.h"

namespace lumeric {

template class SFNumberField<QvSFLong, QvSFLongTraits>;

}  // namespace lumeric
