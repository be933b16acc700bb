// SFVec2f: two components (x, y), or one whole-field expression kept in
// the first; written rounded.
#ifndef LUMERIC_FIELDS_QVSFVEC2F_H
#define LUMERIC_FIELDS_QVSFVEC2F_H

#include "fields/CopyableField.h"
#include "fields/SFVectorField.h"

namespace lumeric {

class QvSFVec2f;

struct QvSFVec2fTraits {
  static constexpr int kSize = 2;
  static constexpr const char* kTypeName = "SFVec2f";
  static constexpr const char* kCannotSet = "Cannot set SFVec2f using this value";
  static constexpr const char* kCannotDefine = "Cannot define a SFVec2f using this value";
  static constexpr const char* kCannotCopy = "Cannot set a SFVec2f using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFVec2f[%d]";
  static constexpr bool kMessagesAtCaller = false;
};

extern template class SFVectorField<QvSFVec2f, QvSFVec2fTraits>;

class QvSFVec2f : public CopyableField<QvSFVec2f, SFVectorField<QvSFVec2f, QvSFVec2fTraits>> {
 public:
  void setDefault(double x, double y) { setDefaultNumbers({x, y}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFVEC2F_H
