#include "expr/ExpressionFixture.h"

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

FieldExpression* ExpressionFixture::expression(const std::string& text) {
  expressions_.emplace_back();
  FieldExpression* e = &expressions_.back();
  e->setText(text.c_str());
  e->line = kLine;
  return e;
}

std::vector<std::string> ExpressionFixture::takeMessages() {
  const std::string prefix = "Line " + std::to_string(kLine) + ": ";
  std::vector<std::string> texts;
  for (const RecordingView::Message& m : view_.messages()) {
    EXPECT_EQ(m.flag, 1) << m.text;
    EXPECT_EQ(m.text.compare(0, prefix.size(), prefix), 0) << m.text;
    texts.push_back(m.text.size() >= prefix.size() ? m.text.substr(prefix.size()) : m.text);
  }
  view_.clear();
  return texts;
}

}  // namespace lumeric
