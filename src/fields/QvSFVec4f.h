// SFVec4f: four components (x, y, z, w), or one whole-field expression kept in
// the first; written rounded.
#ifndef LUMERIC_FIELDS_QVSFVEC4F_H
#define LUMERIC_FIELDS_QVSFVEC4F_H

#include "fields/CopyableField.h"
#include "fields/SFVectorField.h"

namespace lumeric {

class QvSFVec4f;

struct QvSFVec4fTraits {
  static constexpr int kSize = 4;
  static constexpr const char* kTypeName = "SFVec4f";
  static constexpr const char* kCannotSet = "Cannot set SFVec4f using this value";
  static constexpr const char* kCannotDefine = "Cannot define a SFVec4f using this value";
  static constexpr const char* kCannotCopy = "Cannot set a SFVec4f using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFVec4f[%d]";
  // Every set and get message goes to the caller's expression.
  static constexpr bool kMessagesAtCaller = true;
};

extern template class SFVectorField<QvSFVec4f, QvSFVec4fTraits>;

class QvSFVec4f : public CopyableField<QvSFVec4f, SFVectorField<QvSFVec4f, QvSFVec4fTraits>> {
 public:
  void setDefault(double x, double y, double z, double w) { setDefaultNumbers({x, y, z, w}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFVEC4F_H
