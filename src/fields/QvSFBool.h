// SFBool: one number, written FALSE when it is zero (of either sign) and
// TRUE otherwise.  Asked for its value it always answers with a number.
#ifndef LUMERIC_FIELDS_QVSFBOOL_H
#define LUMERIC_FIELDS_QVSFBOOL_H

#include "fields/CopyableField.h"
#include "fields/SFNumberField.h"

namespace lumeric {

class QvSFBool;

struct QvSFBoolTraits {
  static constexpr const char* kTypeName = "SFBool";
  static constexpr const char* kCannotSet = "Cannot set SFBool using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFBool[%d]";
  static constexpr bool kGetGivesNumber = true;
  static void writeValue(SceneWriter& text, const WrittenNumber& n) { text.text(n.value() == 0 ? "FALSE\n" : "TRUE\n"); }
};

extern template class SFNumberField<QvSFBool, QvSFBoolTraits>;

class QvSFBool : public CopyableField<QvSFBool, SFNumberField<QvSFBool, QvSFBoolTraits>> {
 public:
  void setDefault(bool v) { value.setInteger(v ? 1 : 0); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFBOOL_H
