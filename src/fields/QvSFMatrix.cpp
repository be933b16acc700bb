#include "fields/QvSFMatrix.h"

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template class WholeExpressionField<16>;

namespace {

bool inMatrix(int i, int j) { return i >= 0 && i < 4 && j >= 0 && j < 4; }

MatrixTerm* asFourByFour(Term* term) {
  MatrixTerm* matrix = asMatrix(term);
  return matrix != nullptr && matrix->rows == 4 && matrix->cols == 4 ? matrix : nullptr;
}

}  // namespace

MatrixTerm* QvSFMatrix::evaluateWhole() { return asFourByFour(evaluateTerm(&wholeExpression)); }

void QvSFMatrix::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotSet);
  MatrixTerm* matrix = asFourByFour(term);
  ScalarTerm* number = asScalar(term);
  if (i == -1 && j == -1 && matrix != nullptr) {
    storeComponents(matrix->elements);
  } else if (inMatrix(i, j) && number != nullptr) {
    values[4 * i + j].setNumber(number->value);
  } else {
    reportAt(at, "Cannot set SFMatrix using this value");
  }
}

Term* QvSFMatrix::GetLumericValue(int i, int j, FieldExpression* at) {
  bool whole = i == -1 && j == -1;
  if (isExpression) {
    Term* value = evaluateTerm(&wholeExpression);
    if (whole) return value;
    MatrixTerm* matrix = asFourByFour(value);
    if (matrix == nullptr) {
      reportAt(at, "Expression does not evaluate to a 4 by 4 matrix");
      return ScalarTerm::make(0);
    }
    if (inMatrix(i, j)) return ScalarTerm::make(matrix->at(i, j));
  } else {
    if (whole) {
      double numbers[16];
      componentNumbers(numbers);
      return makeMatrix(numbers, 4, 4);
    }
    if (inMatrix(i, j)) return ScalarTerm::make(numberOf(values[4 * i + j]));
  }
  reportAtExpression(at, "Bounds error: tried to access SFMatrix[%d][%d]", i, j);
  return ScalarTerm::make(0);
}

void QvSFMatrix::write(SceneWriter& out) {
  double numbers[16];
  if (isExpression) {
    MatrixTerm* matrix = evaluateWhole();
    if (matrix == nullptr) return reportAt(&wholeExpression, "Expression does not evaluate to a 4 by 4 matrix");
    for (int k = 0; k < 16; ++k) numbers[k] = finiteAt(matrix->elements[k], &wholeExpression);
  } else {
    componentNumbers(numbers);
    for (int k = 0; k < 16; ++k) numbers[k] = finiteAt(numbers[k], &values[k]);
  }
  SceneWriter::Deeper deeper(out);
  // Every row, the first included, starts with a blank: after the field
  // name on the first line and after the tabs on the others.
  for (int row = 0; row < 4; ++row) {
    if (row > 0) out.indentation();
    out.character(' ');
    for (int col = 0; col < 4; ++col) out.number(numbers[4 * row + col]).character(col < 3 ? ' ' : '\n');
  }
}

void QvSFMatrix::copyFrom(QvSFMatrix& source) {
  isExpression = 0;
  if (source.isExpression) {
    MatrixTerm* matrix = source.evaluateWhole();
    if (matrix == nullptr) return clearTexts(values, 16);
    storeComponents(matrix->elements);
    return;
  }
  double numbers[16];
  source.componentNumbers(numbers);
  storeComponents(numbers);
}

void QvSFMatrix::setIdentityDefault() {
  for (int k = 0; k < 16; ++k) values[k].setNumber(k % 5 == 0 ? 1.0 : 0.0);
}

}  // namespace lumeric
