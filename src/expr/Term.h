// The values of expressions: strings, scalars, vectors and matrices of
// doubles.  Terms are made in the term arena and all die together at the end
// of a run (freeAllTerms); holders keep plain pointers and never free them.
// Operations dispatch on `kind`, never on the class.
#ifndef LUMERIC_EXPR_TERM_H
#define LUMERIC_EXPR_TERM_H

#include <cstddef>
#include <cstdint>

namespace lumeric {

enum TermKind : int32_t { kStringTerm = 1, kScalarTerm = 2, kVectorTerm = 3, kMatrixTerm = 4 };

struct Term {
  int32_t kind;
};

struct StringTerm : Term {
  char* text;  // a private copy; null when made from null

  static StringTerm* make(const char* text);
  static StringTerm* make(const char* text, size_t length);
};

struct ScalarTerm : Term {
  double value;

  static ScalarTerm* make(double value);
};

struct VectorTerm : Term {
  double* elements;  // null when length < 1
  int32_t length;

  // Elements are not initialised.
  static VectorTerm* make(int32_t length);
  // Changes the length in place, keeping the existing elements.
  void resize(int32_t newLength);
};

struct MatrixTerm : Term {
  double* elements;  // row-major; null when rows * cols < 1
  int32_t rows;
  int32_t cols;

  // Elements are not initialised.
  static MatrixTerm* make(int32_t rows, int32_t cols);
  // Changes the number of rows in place, keeping `cols` and existing rows.
  void resizeRows(int32_t newRows);
  double& at(int32_t i, int32_t j) { return elements[static_cast<size_t>(cols) * i + j]; }
  double at(int32_t i, int32_t j) const { return elements[static_cast<size_t>(cols) * i + j]; }
  // 1 on the diagonal and 0 elsewhere, whatever the shape.
  void setIdentity();
};

// Checked views: the term as that kind, or null.
inline StringTerm* asString(Term* t) {
  return t != nullptr && t->kind == kStringTerm ? static_cast<StringTerm*>(t) : nullptr;
}
inline ScalarTerm* asScalar(Term* t) {
  return t != nullptr && t->kind == kScalarTerm ? static_cast<ScalarTerm*>(t) : nullptr;
}
inline VectorTerm* asVector(Term* t) {
  return t != nullptr && t->kind == kVectorTerm ? static_cast<VectorTerm*>(t) : nullptr;
}
inline MatrixTerm* asMatrix(Term* t) {
  return t != nullptr && t->kind == kMatrixTerm ? static_cast<MatrixTerm*>(t) : nullptr;
}
// The vector when `t` is a vector of exactly `length` elements, else null.
inline VectorTerm* asVectorOf(Term* t, int32_t length) {
  VectorTerm* v = asVector(t);
  return v != nullptr && v->length == length ? v : nullptr;
}

// A term that is no longer needed before the end of the run.  Its memory
// returns with the arena; nothing else refers to it afterwards.
inline void destroyTerm(Term*) {}

// Frees every term of the run.
void freeAllTerms();

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TERM_H
