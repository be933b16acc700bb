// SFString: one string expression, kept and stored in quotation marks.
#ifndef LUMERIC_FIELDS_QVSFSTRING_H
#define LUMERIC_FIELDS_QVSFSTRING_H

#include "fields/CopyableField.h"
#include "fields/SFStringField.h"

namespace lumeric {

class QvSFString;

struct QvSFStringTraits {
  static constexpr const char* kTypeName = "SFString";
  // Worded like the refusals of the number fields.
  static constexpr const char* kCannotSet = "Cannot set SFString using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFString[%d]";
  static constexpr bool kQuoted = true;
  static StringTerm* evaluate(FieldExpression* expr) { return evaluateString(expr); }
};

extern template class SFStringField<QvSFString, QvSFStringTraits>;

class QvSFString : public CopyableField<QvSFString, SFStringField<QvSFString, QvSFStringTraits>> {
 public:
  // Stores `text` in quotation marks.
  void setDefault(const char* text) { storeString(value, text, true); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFSTRING_H
