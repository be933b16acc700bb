// MFVec4f: a list of four-component vectors, written rounded.
// An expression element that yields no usable value is reported and stands
// for a row of -9999.99.
#ifndef LUMERIC_FIELDS_QVMFVEC4F_H
#define LUMERIC_FIELDS_QVMFVEC4F_H

#include "fields/CopyableField.h"
#include "fields/MFVectorField.h"

namespace lumeric {

class QvMFVec4f;

struct QvMFVec4fTraits {
  static constexpr int kWidth = 4;
  static constexpr const char* kTypeName = "MFVec4f";
  static constexpr bool kRounded = true;
  static constexpr bool kAlwaysExpanded = false;
  static constexpr bool kReportsBadElement = true;
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFVec4f field using this value ";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFVec4f field using this value ";
  static constexpr const char* kBoundsRow = "Bounds error: tried to access MFVec4f[%d]";
  static constexpr const char* kBoundsEntry = "Bounds error: tried to access MFVec4f[%d][%d]";
  static constexpr const char* kBoundsElement = "Bounds error: tried to access MFVec4f[%d][*]";
};

extern template class MFVectorField<QvMFVec4f, QvMFVec4fTraits>;

class QvMFVec4f : public CopyableField<QvMFVec4f, MFVectorField<QvMFVec4f, QvMFVec4fTraits>> {
 public:
  // A list of one element.
  void setDefault(double x, double y, double z, double w) { setDefaultRow({x, y, z, w}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFVEC4F_H
