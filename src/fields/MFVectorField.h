// The vector lists QvMFVec2f, QvMFVec3f, QvMFVec4f and QvMFColor: elements
// of kWidth component expressions.  An element given as one expression
// ("=...") is kept in its first expression and may stand for one row (a
// vector) or many (a matrix of kWidth columns); a list holding such an
// element is defined by a field expression and is read through its
// expanded value, a matrix of kWidth columns.  A Traits class gives each
// type's differences:
//   kWidth, kTypeName,
//   kRounded: written numbers go through roundToPrecision,
//   kAlwaysExpanded: GetLumericValue works on the expanded value also for
//     a plain list,
//   kReportsBadElement: an expression element that yields no usable value
//     is reported (kCannotSet, at the first element) and stands for one row
//     of -9999.99; otherwise it stands for nothing, silently,
//   kCannotSet, kCannotAppend,
//   kBoundsRow ("[%d]"), kBoundsEntry ("[%d][%d]"): the expanded value,
//   kBoundsElement ("[%d][*]"): a plain list (unused with kAlwaysExpanded).
// The message texts are used exactly as they stand, trailing blanks included.
#ifndef LUMERIC_FIELDS_MFVECTORFIELD_H
#define LUMERIC_FIELDS_MFVECTORFIELD_H

#include <vector>

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/ExpressionListField.h"
#include "fields/FieldSupport.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template <class Derived, class Traits>
class MFVectorField : public ExpressionListField {
 public:
  static constexpr int kWidth = Traits::kWidth;

  MFVectorField() : ExpressionListField(kWidth) {}

  static constexpr const char* kTypeName = Traits::kTypeName;
  const char* getTypeName() const override { return Traits::kTypeName; }
  void appendValue(Term* value, FieldExpression* at) override;
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // Stores the expanded value of `source` row by row.
  void copyFrom(Derived& source);
  // The expanded value, kWidth numbers per row.  Every element is evaluated
  // once: an expression element gives its rows, any other its components.
  void expand(std::vector<double>& rows);

 protected:
  // A list of one element holding `row`.
  void setDefaultRow(const double (&row)[kWidth]) {
    setNum(1);
    storeNumbers(element(0), row, kWidth);
  }

 private:
  void storeRows(int first, const double* numbers, int count);
  // Writes `count` rows in the list layout; row(r, numbers) gives row r as
  // kWidth WrittenNumbers.
  template <class RowSource>
  void writeRows(SceneWriter& out, int count, RowSource row);
};

template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::storeRows(int first, const double* numbers, int count) {
  for (int r = 0; r < count; ++r) storeNumbers(element(first + r), numbers + static_cast<size_t>(r) * kWidth, kWidth);
}

template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::appendValue(Term* term, FieldExpression* at) {
  if (isExpression) {
    return reportAt(firstExpression(at), kDefinedCannotAppend);
  }
  MatrixTerm* matrix = asMatrix(term);
  VectorTerm* vector = asVectorOf(term, kWidth);
  if (matrix != nullptr && matrix->cols == kWidth) {
    int first = extend(matrix->rows);
    if (first >= 0) storeRows(first, matrix->elements, matrix->rows);
  } else if (vector != nullptr) {
    int first = extend(1);
    if (first >= 0) storeRows(first, vector->elements, 1);
  } else {
    reportAt(at, Traits::kCannotAppend);
  }
}

template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotSet);
  if (i == -1 && j == -1) {
    MatrixTerm* matrix = asMatrix(term);
    VectorTerm* vector = asVectorOf(term, kWidth);
    if (matrix != nullptr && matrix->cols == kWidth) {
      setNum(matrix->rows);
      storeRows(0, matrix->elements, matrix->rows);
    } else if (vector != nullptr) {
      setNum(1);
      storeRows(0, vector->elements, 1);
    } else {
      reportAt(at, Traits::kCannotSet);
    }
    return;
  }
  // One element or one component: anything unusable is ignored silently.
  if (i < 0 || i >= num) return;
  if (j == -1) {
    if (VectorTerm* vector = asVectorOf(term, kWidth)) storeNumbers(element(i), vector->elements, kWidth);
    return;
  }
  ScalarTerm* number = asScalar(term);
  if (number != nullptr && j >= 0 && j < kWidth) element(i)[j].setNumber(number->value);
}

template <class Derived, class Traits>
Term* MFVectorField<Derived, Traits>::GetLumericValue(int i, int j, FieldExpression* at) {
  if (isExpression || Traits::kAlwaysExpanded) {
    std::vector<double> rows;
    expand(rows);
    int count = static_cast<int>(rows.size() / kWidth);
    if (i == -1 && j == -1) return makeMatrix(rows.data(), count, kWidth);
    if (j == -1) {
      if (i >= 0 && i < count) return makeVector(&rows[static_cast<size_t>(i) * kWidth], kWidth);
      return reportAtExpression(at, Traits::kBoundsRow, i);
    }
    if (i >= 0 && i < count && j >= 0 && j < kWidth) return ScalarTerm::make(rows[static_cast<size_t>(i) * kWidth + j]);
    return reportAtExpression(at, Traits::kBoundsEntry, i, j);
  }
  if constexpr (!Traits::kAlwaysExpanded) {
    if (i == -1 && j == -1) {
      MatrixTerm* matrix = MatrixTerm::make(num, kWidth);
      for (int r = 0; r < matrix->rows; ++r) {
        for (int k = 0; k < kWidth; ++k) matrix->at(r, k) = numberAt(r, k);
      }
      return matrix;
    }
    if (i >= 0 && i < num) {
      double numbers[kWidth];
      for (int k = 0; k < kWidth; ++k) numbers[k] = numberAt(i, k);
      return makeVector(numbers, kWidth);
    }
    reportAtExpression(at, Traits::kBoundsElement, i);
  }
  return nullptr;
}

template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::expand(std::vector<double>& rows) {
  rows.clear();
  rows.reserve(static_cast<size_t>(num) * kWidth);
  for (int i = 0; i < num; ++i) {
    if (!element(i)[0].startsWith('=')) {
      for (int k = 0; k < kWidth; ++k) rows.push_back(numberAt(i, k));
      continue;
    }
    Term* value = evaluateTerm(&element(i)[0]);
    MatrixTerm* matrix = asMatrix(value);
    VectorTerm* vector = asVectorOf(value, kWidth);
    if (vector != nullptr) {
      rows.insert(rows.end(), vector->elements, vector->elements + kWidth);
    } else if (matrix != nullptr && matrix->cols == kWidth) {
      if (matrix->rows > 0) {
        rows.insert(rows.end(), matrix->elements, matrix->elements + static_cast<size_t>(matrix->rows) * kWidth);
      }
    } else if (Traits::kReportsBadElement) {
      reportAt(firstExpression(nullptr), Traits::kCannotSet);
      rows.insert(rows.end(), kWidth, -9999.99);
    }
  }
}

// A plain list is written as it is evaluated, one element at a time; a list
// with expression elements needs its expanded row count first.  For a
// plain list the two are the same rows.
template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::write(SceneWriter& out) {
  if (isExpression) {
    std::vector<double> rows;
    expand(rows);
    // The expanded rows no longer tell their element; the list's first
    // expression stands for all of them in messages.
    writeRows(out, static_cast<int>(rows.size() / kWidth), [&](int r, WrittenNumber* numbers) {
      for (int k = 0; k < kWidth; ++k) {
        numbers[k] = WrittenNumber(finiteAt(rows[static_cast<size_t>(r) * kWidth + k], element(0)));
      }
    });
    return;
  }
  writeRows(out, num, [this](int r, WrittenNumber* numbers) {
    for (int k = 0; k < kWidth; ++k) {
      if (r < num) numbers[k].evaluate(element(r)[k]);
      numbers[k].checkFinite();
    }
  });
}

template <class Derived, class Traits>
template <class RowSource>
void MFVectorField<Derived, Traits>::writeRows(SceneWriter& out, int count, RowSource row) {
  out.list(count, kOneItemPerLine, [&](int r) {
    WrittenNumber numbers[kWidth];
    row(r, numbers);
    for (int k = 0; k < kWidth; ++k) {
      if (k > 0) out.character(' ');
      numbers[k].write(out, Traits::kRounded);
    }
  });
}

template <class Derived, class Traits>
void MFVectorField<Derived, Traits>::copyFrom(Derived& source) {
  std::vector<double> rows;
  source.expand(rows);
  int count = static_cast<int>(rows.size() / kWidth);
  isExpression = 0;
  setNum(count);
  storeRows(0, rows.data(), count);
}

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_MFVECTORFIELD_H
