#include "fields/QvSFRotation.h"

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template class WholeExpressionField<4>;

void QvSFRotation::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  // Worded apart from kDefinedCannotSet.
  if (isExpression) return reportAt(at, "This field is defined by a expression - cannot set its value");
  VectorTerm* vector = asVectorOf(term, 4);
  ScalarTerm* number = asScalar(term);
  if (i == -1 && j == -1 && vector != nullptr) {
    storeComponents(vector->elements);
  } else if (i >= 0 && i < 4 && number != nullptr) {
    values[i].setNumber(number->value);
  } else {
    reportAt(at, "Cannot set a SFRotation field using this expression");
  }
}

Term* QvSFRotation::GetLumericValue(int i, int j, FieldExpression* at) {
  bool whole = i == -1 && j == -1;
  if (isExpression) {
    Term* value = evaluateTerm(&wholeExpression);
    VectorTerm* vector = asVectorOf(value, 4);
    bool component = i >= 0 && i < 4 && j == -1;
    if (value == nullptr || (component && vector == nullptr)) {
      reportAt(at, "Invalid value");
      return nullptr;
    }
    if (whole) return value;
    if (component) return ScalarTerm::make(vector->elements[i]);
    if (i >= 4) reportAtExpression(at, "Bounds error: tried to access SFRotation[%d]", i);
    return nullptr;
  }
  double numbers[4];
  if (whole) {
    componentNumbers(numbers);
    return makeVector(numbers, 4);
  }
  if (i >= 0 && i < 4) return ScalarTerm::make(numberOf(values[i]));
  reportAtExpression(at, "Bounds error: tried to access SFRotation[%d]", i);
  return ScalarTerm::make(0);
}

void QvSFRotation::write(SceneWriter& out) {
  if (isExpression) {
    double numbers[4];
    if (!evaluateVector(&wholeExpression, numbers, 4)) {
      return reportAt(&wholeExpression, "Cannot use this expression to set a rotation field");
    }
    // Each number is written " %g " (the last " %g\n"), so two blanks
    // separate them.
    for (int k = 0; k < 4; ++k) {
      out.character(' ').number(finiteAt(numbers[k], &wholeExpression)).character(k < 3 ? ' ' : '\n');
    }
    return;
  }
  double numbers[4];
  componentNumbers(numbers);
  for (int k = 0; k < 4; ++k) numbers[k] = finiteAt(numbers[k], &values[k]);
  for (int k = 0; k < 3; ++k) out.character(' ').rounded(numbers[k]);
  out.character(' ').number(numbers[3]).character('\n');
}

void QvSFRotation::copyFrom(QvSFRotation& source) {
  isExpression = 0;
  if (source.isExpression) {
    VectorTerm* vector = asVectorOf(evaluateTerm(&source.wholeExpression), 4);
    if (vector == nullptr) {
      clearTexts(values, 4);
      return reportAt(&source.wholeExpression, "Cannot set a SFRotation field using this expression");
    }
    storeComponents(vector->elements);
    return;
  }
  double numbers[4];
  source.componentNumbers(numbers);
  storeComponents(numbers);
}

void QvSFRotation::setDefault(double x, double y, double z, double angle) {
  const double numbers[4] = {x, y, z, angle};
  storeComponents(numbers);
}

}  // namespace lumeric
