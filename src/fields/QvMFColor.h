// MFColor: a list of colours, written unrounded.  Every access goes
// through the expanded value, and an expression element that yields no
// usable colour stands for nothing.
#ifndef LUMERIC_FIELDS_QVMFCOLOR_H
#define LUMERIC_FIELDS_QVMFCOLOR_H

#include "fields/CopyableField.h"
#include "fields/MFVectorField.h"

namespace lumeric {

class QvMFColor;

struct QvMFColorTraits {
  static constexpr int kWidth = 3;
  static constexpr const char* kTypeName = "MFColor";
  static constexpr bool kRounded = false;
  static constexpr bool kAlwaysExpanded = true;
  static constexpr bool kReportsBadElement = false;
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFColor field using this value";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFColor field using this value";
  static constexpr const char* kBoundsRow = "Bounds error: tried to access MFColor[%d]";
  static constexpr const char* kBoundsEntry = "Bounds error: tried to access MFColor[%d][%d]";
  // Unused: every access goes through the expanded value.
  static constexpr const char* kBoundsElement = nullptr;
};

extern template class MFVectorField<QvMFColor, QvMFColorTraits>;

class QvMFColor : public CopyableField<QvMFColor, MFVectorField<QvMFColor, QvMFColorTraits>> {
 public:
  // A list of one element.
  void setDefault(double r, double g, double b) { setDefaultRow({r, g, b}); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFCOLOR_H
