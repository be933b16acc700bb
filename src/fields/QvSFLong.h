// SFLong: one number, written as an integer truncated toward zero and not
// rounded.  Values from expressions are stored with "%g" like any number.
#ifndef LUMERIC_FIELDS_QVSFLONG_H
#define LUMERIC_FIELDS_QVSFLONG_H

#include "expr/TermConversions.h"
#include "fields/CopyableField.h"
#include "fields/SFNumberField.h"

namespace lumeric {

class QvSFLong;

struct QvSFLongTraits {
  static constexpr const char* kTypeName = "SFLong";
  static constexpr const char* kCannotSet = "Cannot set SFLong using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFLong[%d]";
  static constexpr bool kGetGivesNumber = false;
  static void writeValue(SceneWriter& text, const WrittenNumber& n) {
    n.writeInteger(text);
    text.character('\n');
  }
};

extern template class SFNumberField<QvSFLong, QvSFLongTraits>;

class QvSFLong : public CopyableField<QvSFLong, SFNumberField<QvSFLong, QvSFLongTraits>> {
 public:
  void setDefault(int v) { value.setInteger(v); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFLONG_H
