#include "fields/QvSFVec4f.h"

namespace lumeric {

template class SFVectorField<QvSFVec4f, QvSFVec4fTraits>;

}  // namespace lumeric
