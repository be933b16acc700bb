#include "expr/LiteralBuilding.h"

#include <string>

#include "core/QvContext.h"
#include "core/NumberText.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

const char* textOf(const StringTerm* s) { return s->text != nullptr ? s->text : ""; }

void appendNumber(std::string& text, double value) {
  char number[kNumberTextSize];
  text.append(number, static_cast<size_t>(formatNumber(number, value)));
}

}  // namespace

Term* appendToVector(Term* list, Term* item, FieldExpression* at) {
  VectorTerm* vector = asVector(list);
  if (vector != nullptr && asScalar(item) != nullptr) {
    const int32_t length = vector->length;
    vector->resize(length + 1);
    vector->elements[length] = asScalar(item)->value;
    return vector;
  }
  if (vector != nullptr && asVector(item) != nullptr) {
    // Read the item before growing: growth may move the list's elements.
    const VectorTerm* tail = asVector(item);
    const int32_t length = vector->length;
    const int32_t added = tail->length;
    const double* source = tail->elements;
    vector->resize(length + added);
    for (int32_t k = 0; k < added; ++k) vector->elements[length + k] = source[k];
    return vector;
  }
  if (asScalar(list) != nullptr && asScalar(item) != nullptr) {
    VectorTerm* pair = VectorTerm::make(2);
    pair->elements[0] = asScalar(list)->value;
    pair->elements[1] = asScalar(item)->value;
    return pair;
  }
  return reportAtExpression(at, "Error in forming vector");
}

Term* appendMatrixRow(Term* tuple, Term* row, FieldExpression* at) {
  VectorTerm* last = asVector(row);
  VectorTerm* first = asVector(tuple);
  if (first != nullptr && last != nullptr && first->length == last->length) {
    MatrixTerm* matrix = MatrixTerm::make(2, first->length);
    for (int32_t j = 0; j < first->length; ++j) {
      matrix->at(0, j) = first->elements[j];
      matrix->at(1, j) = last->elements[j];
    }
    return matrix;
  }
  MatrixTerm* matrix = asMatrix(tuple);
  if (matrix != nullptr && last != nullptr && last->length == matrix->cols) {
    const int32_t rows = matrix->rows;
    matrix->resizeRows(rows + 1);
    for (int32_t j = 0; j < matrix->cols; ++j) matrix->at(rows, j) = last->elements[j];
    return matrix;
  }
  return reportAtExpression(at, "Error in forming matrix");
}

StringTerm* appendFormattedValue(const StringTerm* name, const Term* value, FieldExpression* at) {
  std::string text = textOf(name);
  if (value->kind == kScalarTerm) {
    appendNumber(text, static_cast<const ScalarTerm*>(value)->value);
  } else if (value->kind == kStringTerm) {
    text += textOf(static_cast<const StringTerm*>(value));
  } else if (value->kind == kVectorTerm && static_cast<const VectorTerm*>(value)->length >= 2 &&
             static_cast<const VectorTerm*>(value)->length <= 4) {
    const VectorTerm* vector = static_cast<const VectorTerm*>(value);
    for (int32_t k = 0; k < vector->length; ++k) {
      text += k == 0 ? '(' : ',';
      appendNumber(text, vector->elements[k]);
    }
    text += ')';
  } else {
    return reportAtExpression(at, "Cannot format value for use with string expression");
  }
  return StringTerm::make(text.c_str(), text.size());
}

StringTerm* joinNames(const StringTerm* first, const StringTerm* second) {
  std::string text = textOf(first);
  text += textOf(second);
  return StringTerm::make(text.c_str(), text.size());
}

}  // namespace lumeric
