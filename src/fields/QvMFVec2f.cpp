#include "fields/QvMFVec2f.h"

namespace lumeric {

template class MFVectorField<QvMFVec2f, QvMFVec2fTraits>;

}  // namespace lumeric
