#include "fields/QvSFVec3f.h"

namespace lumeric {

template class SFVectorField<QvSFVec3f, QvSFVec3fTraits>;

}  // namespace lumeric
