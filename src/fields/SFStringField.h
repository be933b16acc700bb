// The single-string fields QvSFString and QvSFNode: one expression that
// evaluates to a string.  A Traits class gives each type's differences:
//   kTypeName, kCannotSet, kBounds (a format with the index),
//   kQuoted: stored strings are enclosed in quotation marks,
//   static StringTerm* evaluate(FieldExpression*): the evaluation entry.
#ifndef LUMERIC_FIELDS_SFSTRINGFIELD_H
#define LUMERIC_FIELDS_SFSTRINGFIELD_H

#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "fields/SingleExpressionField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template <class Derived, class Traits>
class SFStringField : public SingleExpressionField {
 public:
  static constexpr const char* kTypeName = Traits::kTypeName;
  const char* getTypeName() const override { return Traits::kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // Stores the evaluated string of `source`; no text when it gives none.
  void copyFrom(Derived& source);
};

template <class Derived, class Traits>
void SFStringField<Derived, Traits>::SetLumericValue(Term* term, int, int, FieldExpression* at) {
  StringTerm* string = asString(term);
  if (string == nullptr) return reportAt(at, Traits::kCannotSet);
  storeString(value, string->text, Traits::kQuoted);
}

template <class Derived, class Traits>
Term* SFStringField<Derived, Traits>::GetLumericValue(int i, int, FieldExpression* at) {
  if (i >= 1) return reportAtExpression(at, Traits::kBounds, i);
  return Traits::evaluate(&value);
}

// The string is written as it is: it cannot hold a quotation mark.
template <class Derived, class Traits>
void SFStringField<Derived, Traits>::write(SceneWriter& out) {
  StringTerm* string = Traits::evaluate(&value);
  if (string == nullptr) return reportAt(&value, "Cannot evaluate string");
  out.text(" \"").text(string->text != nullptr ? string->text : "").text("\"\n");
}

template <class Derived, class Traits>
void SFStringField<Derived, Traits>::copyFrom(Derived& source) {
  isExpression = 0;
  StringTerm* string = Traits::evaluate(&source.value);
  if (string == nullptr) {
    value.clearText();
    return;
  }
  storeString(value, string->text, Traits::kQuoted);
}

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_SFSTRINGFIELD_H
