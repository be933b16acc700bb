// MFVec2f: a list of two-component vectors, written rounded.
// An expression element that yields no usable value stands for nothing.
#ifndef LUMERIC_FIELDS_QVMFVEC2F_H
#define LUMERIC_FIELDS_QVMFVEC2F_H

#include "fields/CopyableField.h"
#include "fields/MFVectorField.h"

namespace lumeric {

class QvMFVec2f;

struct QvMFVec2fTraits {
  static constexpr int kWidth = 2;
  static constexpr const char* kTypeName = "MFVec2f";
  static constexpr bool kRounded = true;
  static constexpr bool kAlwaysExpanded = false;
  static constexpr bool kReportsBadElement = false;
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFVec2f field using this value ";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFVec2f field using this value";
  static constexpr const char* kBoundsRow = "Bounds error: tried to access MFVec2f[%d]";
  static constexpr const char* kBoundsEntry = "Bounds error: tried to access MFVec2f[%d][%d]";
  static constexpr const char* kBoundsElement = "Bounds error: tried to access MFVec2f[%d][*]";
};

extern template class MFVectorField<QvMFVec2f, QvMFVec2fTraits>;

class QvMFVec2f : public CopyableField<QvMFVec2f, MFVectorField<QvMFVec2f, QvMFVec2fTraits>> {
 public:
  // A list of one element.
  void setDefault(double x, double y) { setDefaultRow({x, y}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFVEC2F_H
