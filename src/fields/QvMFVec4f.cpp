#include "fields/QvMFVec4f.h"

namespace lumeric {

template class MFVectorField<QvMFVec4f, QvMFVec4fTraits>;

}  // namespace lumeric
