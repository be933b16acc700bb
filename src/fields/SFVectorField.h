// The single vectors QvSFVec2f, QvSFVec3f and QvSFVec4f: kSize component
// expressions; a value given as one expression ("=...") is kept in the
// first of them and must yield a vector of kSize numbers.  A Traits class
// gives each type's differences:
//   kSize, kTypeName,
//   kCannotSet, kCannotDefine, kCannotCopy, kBounds (a format with the index),
//   kMessagesAtCaller: every message of SetLumericValue and GetLumericValue
//     goes to the caller's expression; otherwise the refusal of a component
//     and every message of GetLumericValue go to the field's first
//     component.
#ifndef LUMERIC_FIELDS_SFVECTORFIELD_H
#define LUMERIC_FIELDS_SFVECTORFIELD_H

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "scene/FieldExpression.h"
#include "scene/QvField.h"
#include "reader/QvSceneInput.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template <class Derived, class Traits>
class SFVectorField : public QvSingleField {
 public:
  static constexpr int kSize = Traits::kSize;

  static constexpr const char* kTypeName = Traits::kTypeName;
  const char* getTypeName() const override { return Traits::kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;
  void attachNode(QvNode* node) override;
  bool readValue(QvSceneInput* in) override;

  // Stores the evaluated value of `source` as numbers; after a refused
  // whole-field expression the copy keeps no values.
  void copyFrom(Derived& source);

  FieldExpression values[kSize];

 protected:
  void setDefaultNumbers(const double (&numbers)[kSize]) { storeNumbers(values, numbers, kSize); }

 private:
  FieldExpression* messagePlace(FieldExpression* at) { return Traits::kMessagesAtCaller ? at : &values[0]; }
  // The whole-field expression's vector, or null.
  VectorTerm* evaluateWhole() { return asVectorOf(evaluateTerm(&values[0]), kSize); }
};

template <class Derived, class Traits>
void SFVectorField<Derived, Traits>::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotSet);
  if (i == -1 && j == -1) {
    VectorTerm* vector = asVectorOf(term, kSize);
    if (vector == nullptr) return reportAt(at, Traits::kCannotSet);
    storeNumbers(values, vector->elements, kSize);
    return;
  }
  ScalarTerm* number = asScalar(term);
  if (number == nullptr || i < 0 || i >= kSize) return reportAt(messagePlace(at), Traits::kCannotSet);
  values[i].setNumber(number->value);
}

template <class Derived, class Traits>
Term* SFVectorField<Derived, Traits>::GetLumericValue(int i, int j, FieldExpression* at) {
  FieldExpression* place = messagePlace(at);
  bool whole = i == -1 && j == -1;
  if (isExpression) {
    VectorTerm* vector = evaluateWhole();
    if (vector == nullptr) {
      reportAt(place, Traits::kCannotDefine);
      return nullptr;
    }
    if (whole) return vector;
    if (i >= 0 && i < kSize) return ScalarTerm::make(vector->elements[i]);
  } else {
    if (whole) {
      double numbers[kSize];
      numbersOf(values, kSize, numbers);
      return makeVector(numbers, kSize);
    }
    if (i >= 0 && i < kSize) return evaluateTerm(&values[i]);
  }
  return reportAtExpression(place, Traits::kBounds, i);
}

template <class Derived, class Traits>
void SFVectorField<Derived, Traits>::write(SceneWriter& out) {
  WrittenNumber numbers[kSize];
  if (isExpression) {
    VectorTerm* vector = evaluateWhole();
    if (vector == nullptr) return reportAt(&values[0], Traits::kCannotDefine);
    for (int k = 0; k < kSize; ++k) numbers[k] = WrittenNumber(finiteAt(vector->elements[k], &values[0]));
  } else {
    for (int k = 0; k < kSize; ++k) numbers[k].evaluate(values[k]);
  }
  for (int k = 0; k < kSize; ++k) {
    if (k == 0) out.character(' ');
    numbers[k].checkFinite();
    numbers[k].write(out, true);
    out.character(k + 1 < kSize ? ' ' : '\n');
  }
}

template <class Derived, class Traits>
void SFVectorField<Derived, Traits>::attachNode(QvNode* node) {
  for (FieldExpression& component : values) component.attachOwner(node);
}

template <class Derived, class Traits>
bool SFVectorField<Derived, Traits>::readValue(QvSceneInput* in) {
  if (in->peekChar('=')) {
    isExpression = 1;
    return in->readValueText(values[0], container);
  }
  for (FieldExpression& component : values) {
    if (!in->readValueText(component, container)) return false;
  }
  return true;
}

template <class Derived, class Traits>
void SFVectorField<Derived, Traits>::copyFrom(Derived& source) {
  isExpression = 0;
  double numbers[kSize];
  if (source.isExpression) {
    VectorTerm* vector = source.evaluateWhole();
    if (vector == nullptr) {
      clearTexts(values, kSize);
      return reportAt(&values[0], Traits::kCannotCopy);
    }
    for (int k = 0; k < kSize; ++k) numbers[k] = vector->elements[k];
  } else {
    numbersOf(source.values, kSize, numbers);
  }
  storeNumbers(values, numbers, kSize);
}

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_SFVECTORFIELD_H
