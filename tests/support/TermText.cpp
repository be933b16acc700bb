#include "support/TermText.h"

#include <cstdio>

namespace lumeric {

namespace {

std::string numbers(const double* values, int count, int columns) {
  std::string text = "(";
  for (int k = 0; k < count; ++k) {
    if (k > 0) text += (k % columns == 0) ? ";" : ",";
    char number[32];
    std::snprintf(number, sizeof number, "%g", values[k]);
    text += number;
  }
  return text + ")";
}

}  // namespace

std::string describeTerm(const Term* term) {
  if (term == nullptr) return "none";
  switch (term->kind) {
    case kStringTerm: {
      const char* text = static_cast<const StringTerm*>(term)->text;
      return std::string("string \"") + (text != nullptr ? text : "(null)") + "\"";
    }
    case kScalarTerm: {
      char number[32];
      std::snprintf(number, sizeof number, "%g", static_cast<const ScalarTerm*>(term)->value);
      return std::string("scalar ") + number;
    }
    case kVectorTerm: {
      const VectorTerm* v = static_cast<const VectorTerm*>(term);
      return "vector " + numbers(v->elements, v->length, v->length + 1);
    }
    case kMatrixTerm: {
      const MatrixTerm* m = static_cast<const MatrixTerm*>(term);
      return "matrix " + numbers(m->elements, m->rows * m->cols, m->cols);
    }
    default:
      return "kind " + std::to_string(term->kind);
  }
}

}  // namespace lumeric
