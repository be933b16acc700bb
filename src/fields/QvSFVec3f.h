// SFVec3f: three components (x, y, z), or one whole-field expression kept in
// the first; written rounded.
#ifndef LUMERIC_FIELDS_QVSFVEC3F_H
#define LUMERIC_FIELDS_QVSFVEC3F_H

#include "fields/CopyableField.h"
#include "fields/SFVectorField.h"

namespace lumeric {

class QvSFVec3f;

struct QvSFVec3fTraits {
  static constexpr int kSize = 3;
  static constexpr const char* kTypeName = "SFVec3f";
  static constexpr const char* kCannotSet = "Cannot set SFVec3f using this value";
  static constexpr const char* kCannotDefine = "Cannot define a SFVec3f using this value";
  static constexpr const char* kCannotCopy = "Cannot set a SFVec3f using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFVec3f[%d]";
  static constexpr bool kMessagesAtCaller = false;
};

extern template class SFVectorField<QvSFVec3f, QvSFVec3fTraits>;

class QvSFVec3f : public CopyableField<QvSFVec3f, SFVectorField<QvSFVec3f, QvSFVec3fTraits>> {
 public:
  void setDefault(double x, double y, double z) { setDefaultNumbers({x, y, z}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFVEC3F_H
