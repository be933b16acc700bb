#include "expr/TermKernels.h"

#include "core/QvContext.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

size_t countOf(const MatrixTerm* m) { return static_cast<size_t>(m->rows) * static_cast<size_t>(m->cols); }

bool isEmpty(const MatrixTerm* m) { return m->rows <= 0 || m->cols <= 0; }

bool sameShape(const MatrixTerm* a, const MatrixTerm* b) {
  return !isEmpty(a) && a->rows == b->rows && a->cols == b->cols;
}

bool sameLength(const VectorTerm* a, const VectorTerm* b) { return a->length > 0 && a->length == b->length; }

template <typename Operation>
VectorTerm* mapVector(const VectorTerm* v, Operation operation) {
  VectorTerm* result = VectorTerm::make(v->length);
  for (int32_t i = 0; i < v->length; ++i) result->elements[i] = operation(v->elements[i]);
  return result;
}

template <typename Operation>
VectorTerm* combineVectors(const VectorTerm* a, const VectorTerm* b, Operation operation) {
  VectorTerm* result = VectorTerm::make(a->length);
  for (int32_t i = 0; i < a->length; ++i) result->elements[i] = operation(a->elements[i], b->elements[i]);
  return result;
}

template <typename Operation>
MatrixTerm* mapMatrix(const MatrixTerm* m, Operation operation) {
  MatrixTerm* result = MatrixTerm::make(m->rows, m->cols);
  for (size_t k = 0; k < countOf(m); ++k) result->elements[k] = operation(m->elements[k]);
  return result;
}

template <typename Operation>
MatrixTerm* combineMatrices(const MatrixTerm* a, const MatrixTerm* b, Operation operation) {
  MatrixTerm* result = MatrixTerm::make(a->rows, a->cols);
  for (size_t k = 0; k < countOf(a); ++k) result->elements[k] = operation(a->elements[k], b->elements[k]);
  return result;
}

}  // namespace

VectorTerm* addScalarToVector(double s, const VectorTerm* v, FieldExpression* at) {
  if (v->length <= 0) return reportAtExpression(at, "Cannot add a scaler to a %d length vector", v->length);
  return mapVector(v, [s](double x) { return x + s; });
}

MatrixTerm* addScalarToMatrix(double s, const MatrixTerm* m, FieldExpression* at) {
  if (isEmpty(m)) return reportAtExpression(at, "Cannot add a scaler to a %d x %d matrix", m->rows, m->cols);
  return mapMatrix(m, [s](double x) { return x + s; });
}

VectorTerm* addVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at) {
  if (!sameLength(a, b)) {
    return reportAtExpression(at, "Cannot add a %d length vector to a %d length vector", a->length, b->length);
  }
  return combineVectors(a, b, [](double x, double y) { return x + y; });
}

VectorTerm* subtractVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at) {
  if (!sameLength(a, b)) {
    return reportAtExpression(at, "Cannot add a %d length vector to a %d length vector", a->length, b->length);
  }
  return combineVectors(a, b, [](double x, double y) { return x - y; });
}

MatrixTerm* addMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at) {
  if (!sameShape(a, b)) {
    reportAtExpression(at, "Cannot add a %d x %d matrix to a %d by %d matrix", a->rows, a->cols, b->rows,
                                  b->cols);
    return nullptr;
  }
  return combineMatrices(a, b, [](double x, double y) { return x + y; });
}

MatrixTerm* subtractMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at) {
  if (!sameShape(a, b)) {
    reportAtExpression(at, "Cannot add a %d x %d matrix to a %d by %d matrix", a->rows, a->cols, b->rows,
                                  b->cols);
    return nullptr;
  }
  return combineMatrices(a, b, [](double x, double y) { return x - y; });
}

VectorTerm* scaleVector(double s, const VectorTerm* v, FieldExpression* at) {
  if (v->length <= 0) return reportAtExpression(at, "Cannot multiply a %d length vector by a scaler", v->length);
  return mapVector(v, [s](double x) { return x * s; });
}

MatrixTerm* scaleMatrix(double s, const MatrixTerm* m, FieldExpression* at) {
  if (isEmpty(m)) return reportAtExpression(at, "Cannot multiply a %d x %d matrix by a scaler", m->rows, m->cols);
  return mapMatrix(m, [s](double x) { return x * s; });
}

VectorTerm* multiplyVectors(const VectorTerm* a, const VectorTerm* b, FieldExpression* at) {
  if (!sameLength(a, b)) {
    reportAtExpression(at, "Cannot multiply a %d length vector by a %d length vector", a->length,
                                  b->length);
    return nullptr;
  }
  return combineVectors(a, b, [](double x, double y) { return x * y; });
}

MatrixTerm* multiplyMatrices(const MatrixTerm* a, const MatrixTerm* b, FieldExpression* at) {
  if (isEmpty(a) || isEmpty(b) || b->rows != a->cols) {
    reportAtExpression(at, "Cannot multiply a %d x %d matrix by a %d by %d matrix", a->rows, a->cols,
                                  b->rows, b->cols);
    return nullptr;
  }
  MatrixTerm* product = MatrixTerm::make(a->rows, b->cols);
  for (int32_t i = 0; i < a->rows; ++i) {
    for (int32_t j = 0; j < b->cols; ++j) {
      double sum = 0.0;
      for (int32_t k = 0; k < a->cols; ++k) sum += a->at(i, k) * b->at(k, j);
      product->at(i, j) = sum;
    }
  }
  return product;
}

}  // namespace lumeric
