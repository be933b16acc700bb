#include "fields/QvMFLong.h"

namespace lumeric {

template class MFNumberField<QvMFLong, QvMFLongTraits>;

}  // namespace lumeric
