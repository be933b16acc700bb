#include "fields/QvSFColor.h"

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "scene/SceneMessages.h"

namespace lumeric {

template class WholeExpressionField<3>;

void QvSFColor::SetLumericValue(Term* term, int i, int j, FieldExpression* at) {
  if (isExpression) return reportAt(at, kDefinedCannotSet);
  if (i == -1 && j == -1) {
    VectorTerm* vector = asVectorOf(term, 3);
    if (vector == nullptr) return reportAt(at, "Cannot set QvSFColor using this value");
    storeComponents(vector->elements);
    return;
  }
  ScalarTerm* number = asScalar(term);
  if (number == nullptr || i < 0 || i >= 3) return reportAt(at, "Cannot set SFColor using this value");
  values[i].setNumber(number->value);
}

Term* QvSFColor::GetLumericValue(int i, int j, FieldExpression* at) {
  bool whole = i == -1 && j == -1;
  if (isExpression) {
    Term* value = evaluateTerm(&wholeExpression);
    if (whole) return value;
    VectorTerm* vector = asVectorOf(value, 3);
    if (vector != nullptr && i >= 0 && i < 3) return ScalarTerm::make(vector->elements[i]);
    return reportAtExpression(at, "Bounds error: tried to access SFColor[%d]", i);
  }
  double numbers[3];
  if (whole) {
    componentNumbers(numbers);
    return makeVector(numbers, 3);
  }
  if (i >= 0 && i < 3) return ScalarTerm::make(numberOf(values[i]));
  reportAtExpression(at, "Bounds error: tried to access SFColor[%d]", i);
  return ScalarTerm::make(0);
}

void QvSFColor::write(SceneWriter& out) {
  double numbers[3];
  if (isExpression) {
    VectorTerm* vector = asVectorOf(evaluateTerm(&wholeExpression), 3);
    if (vector == nullptr) return reportAt(&wholeExpression, "Field expression does not evaluate to a color field");
    for (int k = 0; k < 3; ++k) numbers[k] = vector->elements[k];
  } else {
    componentNumbers(numbers);
  }
  for (int k = 0; k < 3; ++k) {
    out.character(' ').number(finiteAt(numbers[k], isExpression ? &wholeExpression : &values[k]));
  }
  out.character('\n');
}

void QvSFColor::copyFrom(QvSFColor& source) {
  isExpression = 0;
  if (source.isExpression) {
    VectorTerm* vector = asVectorOf(evaluateTerm(&source.wholeExpression), 3);
    if (vector == nullptr) return clearTexts(values, 3);
    storeComponents(vector->elements);
    return;
  }
  double numbers[3];
  source.componentNumbers(numbers);
  storeComponents(numbers);
}

void QvSFColor::setDefault(double r, double g, double b) {
  const double numbers[3] = {r, g, b};
  storeComponents(numbers);
}

}  // namespace lumeric
