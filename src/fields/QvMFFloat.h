// MFFloat: a list of numbers, written rounded, ten to a line.
#ifndef LUMERIC_FIELDS_QVMFFLOAT_H
#define LUMERIC_FIELDS_QVMFFLOAT_H

#include "fields/CopyableField.h"
#include "fields/MFNumberField.h"

namespace lumeric {

class QvMFFloat;

struct QvMFFloatTraits {
  static constexpr const char* kTypeName = "MFFloat";
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFFloat field using this value";
  static constexpr const char* kCannotSetEntry = "Bounds error: cannot set a MFFloat field using this value ";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFFloat field using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access MFFloat[%d]";
  static void writeItem(SceneWriter& text, const WrittenNumber& n) { n.write(text, true); }
};

extern template class MFNumberField<QvMFFloat, QvMFFloatTraits>;

class QvMFFloat : public CopyableField<QvMFFloat, MFNumberField<QvMFFloat, QvMFFloatTraits>> {
 public:
  // A list of one element.
  void setDefault(double v) {
    setNum(1);
    element(0)->setNumber(v);
  }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFFLOAT_H
