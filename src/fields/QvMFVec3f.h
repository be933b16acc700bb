// MFVec3f: a list of three-component vectors, written rounded.
// An expression element that yields no usable value is reported and stands
// for a row of -9999.99.
#ifndef LUMERIC_FIELDS_QVMFVEC3F_H
#define LUMERIC_FIELDS_QVMFVEC3F_H

#include "fields/CopyableField.h"
#include "fields/MFVectorField.h"

namespace lumeric {

class QvMFVec3f;

struct QvMFVec3fTraits {
  static constexpr int kWidth = 3;
  static constexpr const char* kTypeName = "MFVec3f";
  static constexpr bool kRounded = true;
  static constexpr bool kAlwaysExpanded = false;
  static constexpr bool kReportsBadElement = true;
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFVec3f field using this value";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFVec3f field using this value ";
  static constexpr const char* kBoundsRow = "Bounds error: tried to access MFVec3f[%d]";
  static constexpr const char* kBoundsEntry = "Bounds error: tried to access MFVec3f[%d][%d]";
  static constexpr const char* kBoundsElement = "Bounds error: tried to access MFVec3f[%d][*]";
};

extern template class MFVectorField<QvMFVec3f, QvMFVec3fTraits>;

class QvMFVec3f : public CopyableField<QvMFVec3f, MFVectorField<QvMFVec3f, QvMFVec3fTraits>> {
 public:
  // A list of one element.
  void setDefault(double x, double y, double z) { setDefaultRow({x, y, z}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFVEC3F_H
