// The single-number fields QvSFFloat, QvSFLong and QvSFBool: one
// expression, evaluated as a number.  A Traits class gives each type's
// name, messages and written form:
//   kTypeName, kCannotSet, kBounds (a format with the index),
//   kGetGivesNumber: true when GetLumericValue always answers with a new
//     ScalarTerm (0 after the bounds message); false when it gives the
//     evaluated term and null after the bounds message,
//   static void writeValue(SceneWriter&, const WrittenNumber&): the text
//     after " ".
#ifndef LUMERIC_FIELDS_SFNUMBERFIELD_H
#define LUMERIC_FIELDS_SFNUMBERFIELD_H

#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "fields/SingleExpressionField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template <class Derived, class Traits>
class SFNumberField : public SingleExpressionField {
 public:
  static constexpr const char* kTypeName = Traits::kTypeName;
  const char* getTypeName() const override { return Traits::kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // Stores the evaluated number of `source`.
  void copyFrom(Derived& source) { value.setNumber(numberOf(source.value)); }
};

template <class Derived, class Traits>
void SFNumberField<Derived, Traits>::SetLumericValue(Term* term, int, int, FieldExpression* at) {
  ScalarTerm* number = asScalar(term);
  if (number == nullptr) return reportAt(at, Traits::kCannotSet);
  value.setNumber(number->value);
}

template <class Derived, class Traits>
Term* SFNumberField<Derived, Traits>::GetLumericValue(int i, int, FieldExpression* at) {
  if (i >= 1) {
    reportAtExpression(at, Traits::kBounds, i);
    return Traits::kGetGivesNumber ? ScalarTerm::make(0) : nullptr;
  }
  if (Traits::kGetGivesNumber) return ScalarTerm::make(numberOf(value));
  return evaluateTerm(&value);
}

template <class Derived, class Traits>
void SFNumberField<Derived, Traits>::write(SceneWriter& out) {
  out.character(' ');
  WrittenNumber number;
  number.evaluate(value);
  number.checkFinite();
  Traits::writeValue(out, number);
}

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_SFNUMBERFIELD_H
