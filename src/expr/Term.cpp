#include "expr/Term.h"

#include <cstring>

#include "expr/TermArena.h"
#include "expr/WorkBudget.h"

namespace lumeric {

namespace {

template <typename T>
T* newTerm(TermKind kind) {
  T* term = static_cast<T*>(termArena().allocate(sizeof(T)));
  term->kind = kind;
  return term;
}

double* newElements(int64_t count) {
  if (count < 1) return nullptr;
  chargeValues(static_cast<size_t>(count));
  return static_cast<double*>(termArena().allocate(sizeof(double) * static_cast<size_t>(count)));
}

}  // namespace

StringTerm* StringTerm::make(const char* text) {
  return make(text, text == nullptr ? 0 : std::strlen(text));
}

StringTerm* StringTerm::make(const char* text, size_t length) {
  StringTerm* term = newTerm<StringTerm>(kStringTerm);
  if (text == nullptr) {
    term->text = nullptr;
    return term;
  }
  term->text = static_cast<char*>(termArena().allocate(length + 1));
  std::memcpy(term->text, text, length);
  term->text[length] = '\0';
  return term;
}

ScalarTerm* ScalarTerm::make(double value) {
  ScalarTerm* term = newTerm<ScalarTerm>(kScalarTerm);
  term->value = value;
  return term;
}

VectorTerm* VectorTerm::make(int32_t length) {
  VectorTerm* term = newTerm<VectorTerm>(kVectorTerm);
  term->length = length;
  term->elements = newElements(length);
  return term;
}

void VectorTerm::resize(int32_t newLength) {
  size_t oldBytes = length > 0 ? sizeof(double) * static_cast<size_t>(length) : 0;
  if (newLength < 1) {
    elements = nullptr;
  } else {
    if (newLength > length) chargeValues(static_cast<size_t>(newLength - (length > 0 ? length : 0)));
    elements = static_cast<double*>(
        termArena().reallocate(elements, oldBytes, sizeof(double) * static_cast<size_t>(newLength)));
  }
  length = newLength;
}

MatrixTerm* MatrixTerm::make(int32_t rows, int32_t cols) {
  MatrixTerm* term = newTerm<MatrixTerm>(kMatrixTerm);
  term->rows = rows;
  term->cols = cols;
  term->elements = (rows > 0 && cols > 0) ? newElements(static_cast<int64_t>(rows) * cols) : nullptr;
  return term;
}

void MatrixTerm::resizeRows(int32_t newRows) {
  int64_t oldCount = (rows > 0 && cols > 0) ? static_cast<int64_t>(rows) * cols : 0;
  int64_t newCount = (newRows > 0 && cols > 0) ? static_cast<int64_t>(newRows) * cols : 0;
  if (newCount < 1) {
    elements = nullptr;
  } else {
    if (newCount > oldCount) chargeValues(static_cast<size_t>(newCount - oldCount));
    elements = static_cast<double*>(termArena().reallocate(elements, sizeof(double) * static_cast<size_t>(oldCount),
                                                           sizeof(double) * static_cast<size_t>(newCount)));
  }
  rows = newRows;
}

void MatrixTerm::setIdentity() {
  for (int32_t i = 0; i < rows; ++i) {
    for (int32_t j = 0; j < cols; ++j) at(i, j) = (i == j) ? 1.0 : 0.0;
  }
}

void freeAllTerms() { termArena().clear(); }

}  // namespace lumeric
