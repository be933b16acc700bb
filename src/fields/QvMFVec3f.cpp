#include "fields/QvMFVec3f.h"

namespace lumeric {

template class MFVectorField<QvMFVec3f, QvMFVec3fTraits>;

}  // namespace lumeric
