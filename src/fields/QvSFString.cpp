#include "fields/QvSFString.h"

namespace lumeric {

template class SFStringField<QvSFString, QvSFStringTraits>;

}  // namespace lumeric
