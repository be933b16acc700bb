#include "fields/QvMFColor.h"

namespace lumeric {

template class MFVectorField<QvMFColor, QvMFColorTraits>;

}  // namespace lumeric
