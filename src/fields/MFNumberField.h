// The number lists QvMFFloat and QvMFLong: elements of one expression.  An
// element given as one expression ("=...") may stand for several numbers
// (all those of a vector or matrix it yields); a list holding such an
// element is defined by a field expression and is read through its
// expanded value, a vector of all the numbers.  A Traits class gives each
// type's differences:
//   kTypeName,
//   kCannotSet (the whole list), kCannotSetEntry (a call with a second
//     index), kCannotAppend, kBounds (a format with the index),
//   static void writeItem(SceneWriter&, const WrittenNumber&): one number as
//     written.
// The message texts are used exactly as they stand, trailing blanks included.
#ifndef LUMERIC_FIELDS_MFNUMBERFIELD_H
#define LUMERIC_FIELDS_MFNUMBERFIELD_H

#include <vector>

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/ExpressionListField.h"
#include "fields/FieldSupport.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template <class Derived, class Traits>
class MFNumberField : public ExpressionListField {
 public:
  // Numbers written on one line of a long list.
  static constexpr int kItemsPerLine = 10;

  MFNumberField() : ExpressionListField(1) {}

  static constexpr const char* kTypeName = Traits::kTypeName;
  const char* getTypeName() const override { return Traits::kTypeName; }
  void appendValue(Term* value, FieldExpression* at) override;
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // Stores the expanded value of `source`, one number per element.
  void copyFrom(Derived& source);
  // The expanded value: a plain element gives its number; an expression
  // element every number of the scalar, vector or matrix it yields, or
  // nothing (silently) for anything else.
  void expand(std::vector<double>& numbers);

 private:
  void storeFrom(int first, const double* numbers, int count);
  // Writes `count` numbers in the list layout; item(k) gives number k, a
  // WrittenNumber.
  template <class ItemSource>
  void writeItems(SceneWriter& out, int count, ItemSource item);
};

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::storeFrom(int first, const double* numbers, int count) {
  for (int k = 0; k < count; ++k) element(first + k)->setNumber(numbers[k]);
}

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::appendValue(Term* term, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotAppend);
  ScalarTerm* number = asScalar(term);
  VectorTerm* vector = asVector(term);
  if (number != nullptr) {
    int first = extend(1);
    if (first >= 0) storeFrom(first, &number->value, 1);
  } else if (vector != nullptr) {
    int first = extend(vector->length);
    if (first >= 0) storeFrom(first, vector->elements, vector->length);
  } else {
    reportAt(at, Traits::kCannotAppend);
  }
}

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotSet);
  if (j != -1) return reportAt(at, Traits::kCannotSetEntry);
  if (i == -1) {
    VectorTerm* vector = asVector(term);
    if (vector == nullptr) return reportAt(at, Traits::kCannotSet);
    setNum(vector->length);
    storeFrom(0, vector->elements, num);
    return;
  }
  // One element: anything unusable is ignored silently.
  ScalarTerm* number = asScalar(term);
  if (number != nullptr && i >= 0 && i < num) element(i)->setNumber(number->value);
}

template <class Derived, class Traits>
Term* MFNumberField<Derived, Traits>::GetLumericValue(int i, int j, FieldExpression* at) {
  if (isExpression) {
    // A second index has no meaning for a list of numbers.
    if (j != -1) return nullptr;
    std::vector<double> numbers;
    expand(numbers);
    int count = static_cast<int>(numbers.size());
    if (i == -1) return makeVector(numbers.data(), count);
    if (i >= 0 && i < count) return ScalarTerm::make(numbers[static_cast<size_t>(i)]);
    return reportAtExpression(at, Traits::kBounds, i);
  }
  if (i == -1 && j == -1) {
    VectorTerm* vector = VectorTerm::make(num);
    for (int k = 0; k < vector->length; ++k) vector->elements[k] = numberAt(k, 0);
    return vector;
  }
  if (i >= 0 && i < num) return ScalarTerm::make(numberAt(i, 0));
  reportAtExpression(at, Traits::kBounds, i);
  return ScalarTerm::make(0);
}

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::expand(std::vector<double>& numbers) {
  numbers.clear();
  numbers.reserve(static_cast<size_t>(num));
  for (int i = 0; i < num; ++i) {
    if (!element(i)->startsWith('=')) {
      numbers.push_back(numberAt(i, 0));
      continue;
    }
    Term* value = evaluateTerm(element(i));
    if (ScalarTerm* number = asScalar(value)) {
      numbers.push_back(number->value);
    } else if (VectorTerm* vector = asVector(value)) {
      if (vector->length > 0) numbers.insert(numbers.end(), vector->elements, vector->elements + vector->length);
    } else if (MatrixTerm* matrix = asMatrix(value)) {
      if (matrix->rows > 0 && matrix->cols > 0) {
        numbers.insert(numbers.end(), matrix->elements,
                       matrix->elements + static_cast<size_t>(matrix->rows) * static_cast<size_t>(matrix->cols));
      }
    }
  }
}

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::write(SceneWriter& out) {
  if (isExpression) {
    std::vector<double> numbers;
    expand(numbers);
    // The expanded numbers no longer tell their element; the list's first
    // expression stands for all of them in messages.
    writeItems(out, static_cast<int>(numbers.size()),
               [&](int k) { return WrittenNumber(finiteAt(numbers[static_cast<size_t>(k)], element(0))); });
    return;
  }
  writeItems(out, num, [this](int k) {
    WrittenNumber number;
    if (k < num) number.evaluate(*element(k));
    number.checkFinite();
    return number;
  });
}

// One number: " %g\n".  Up to kItemsPerLine: " [", the items " %g," and the
// last " %g", " ]\n".  Longer lists continue on lines one level deeper,
// kItemsPerLine items to a line, each line started with its tabs.
template <class Derived, class Traits>
template <class ItemSource>
void MFNumberField<Derived, Traits>::writeItems(SceneWriter& out, int count, ItemSource item) {
  out.list(count, ListLayout{kItemsPerLine, true, false}, [&](int k) { Traits::writeItem(out, item(k)); });
}

template <class Derived, class Traits>
void MFNumberField<Derived, Traits>::copyFrom(Derived& source) {
  std::vector<double> numbers;
  source.expand(numbers);
  isExpression = 0;
  setNum(static_cast<int>(numbers.size()));
  storeFrom(0, numbers.data(), num);
}

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_MFNUMBERFIELD_H
