// MFLong: a list of numbers, written as integers truncated toward zero and
// not rounded, ten to a line.
#ifndef LUMERIC_FIELDS_QVMFLONG_H
#define LUMERIC_FIELDS_QVMFLONG_H

#include "expr/TermConversions.h"
#include "fields/CopyableField.h"
#include "fields/MFNumberField.h"

namespace lumeric {

class QvMFLong;

struct QvMFLongTraits {
  static constexpr const char* kTypeName = "MFLong";
  static constexpr const char* kCannotSet = "Bounds error: cannot set a MFLong field using this value";
  static constexpr const char* kCannotSetEntry = "Bounds error: cannot set a MFLong field using this value ";
  static constexpr const char* kCannotAppend = "Bounds error: cannot append to a MFLong field using this value ";
  static constexpr const char* kBounds = "Bounds error: tried to access MFLong[%d]";
  static void writeItem(SceneWriter& text, const WrittenNumber& n) { n.writeInteger(text); }
};

extern template class MFNumberField<QvMFLong, QvMFLongTraits>;

class QvMFLong : public CopyableField<QvMFLong, MFNumberField<QvMFLong, QvMFLongTraits>> {
 public:
  // A list of one element.
  void setDefault(int v) {
    setNum(1);
    element(0)->setInteger(v);
  }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFLONG_H
