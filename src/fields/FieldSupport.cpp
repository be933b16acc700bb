#include "fields/FieldSupport.h"

#include <cstring>
#include <string>

#include "expr/Evaluation.h"
#include "expr/TermConversions.h"
#include "scene/FieldExpression.h"

namespace lumeric {

double numberOf(FieldExpression& expr) {
  double value = 0;
  evaluateScalar(&expr, &value);
  return value;
}

void numbersOf(FieldExpression* exprs, int count, double* out) {
  for (int k = 0; k < count; ++k) out[k] = numberOf(exprs[k]);
}

void WrittenNumber::evaluateValue(FieldExpression& expression) {
  length_ = 0;
  value_ = numberOf(expression);
}

void WrittenNumber::write(SceneWriter& out, bool round) const {
  if (length_ != 0) {
    out.decimal(decimal(), round);
  } else if (round) {
    out.rounded(value_);
  } else {
    out.number(value_);
  }
}

void WrittenNumber::writeInteger(SceneWriter& out) const {
  char digits[32];
  const int length = length_ != 0 ? truncateDecimalText(decimal(), digits) : 0;
  if (length != 0) {
    out.text(digits, static_cast<size_t>(length));
  } else {
    out.integer(truncateToInt(value()));
  }
}

void storeNumbers(FieldExpression* exprs, const double* values, int count) {
  for (int k = 0; k < count; ++k) exprs[k].setNumber(values[k]);
}

void storeString(FieldExpression& expr, const char* text, bool quoted) {
  if (text == nullptr) text = "";
  if (!quoted) {
    expr.setText(text);
    return;
  }
  std::string enclosed;
  enclosed.reserve(std::strlen(text) + 2);
  enclosed += '"';
  enclosed += text;
  enclosed += '"';
  expr.setText(enclosed.c_str(), enclosed.size());
}

void clearTexts(FieldExpression* exprs, int count) {
  for (int k = 0; k < count; ++k) exprs[k].clearText();
}

VectorTerm* makeVector(const double* values, int count) {
  VectorTerm* term = VectorTerm::make(count);
  if (count > 0) std::memcpy(term->elements, values, sizeof(double) * static_cast<size_t>(count));
  return term;
}

MatrixTerm* makeMatrix(const double* values, int rows, int cols) {
  MatrixTerm* term = MatrixTerm::make(rows, cols);
  if (rows > 0 && cols > 0) {
    std::memcpy(term->elements, values, sizeof(double) * static_cast<size_t>(rows) * static_cast<size_t>(cols));
  }
  return term;
}

}  // namespace lumeric
