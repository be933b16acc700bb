// SFFloat: one number, written rounded to the precision step.
#ifndef LUMERIC_FIELDS_QVSFFLOAT_H
#define LUMERIC_FIELDS_QVSFFLOAT_H

#include "fields/CopyableField.h"
#include "fields/SFNumberField.h"

namespace lumeric {

class QvSFFloat;

struct QvSFFloatTraits {
  static constexpr const char* kTypeName = "SFFloat";
  static constexpr const char* kCannotSet = "Cannot set SFFloat using this value";
  // Worded like the bounds errors of SFLong and SFBool.
  static constexpr const char* kBounds = "Bounds error: tried to access SFFloat[%d]";
  static constexpr bool kGetGivesNumber = false;
  static void writeValue(SceneWriter& text, const WrittenNumber& n) {
    n.write(text, true);
    text.character('\n');
  }
};

extern template class SFNumberField<QvSFFloat, QvSFFloatTraits>;

class QvSFFloat : public CopyableField<QvSFFloat, SFNumberField<QvSFFloat, QvSFFloatTraits>> {
 public:
  void setDefault(double v) { value.setNumber(v); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFFLOAT_H
