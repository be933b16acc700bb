#include "fields/QvSFVec2f.h"

namespace lumeric {

template class SFVectorField<QvSFVec2f, QvSFVec2fTraits>;

}  // namespace lumeric
