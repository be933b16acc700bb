#include "expr/TermConversions.h"

#include <climits>
#include <cmath>

#include "core/QvContext.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

int truncateSaturating(double value, int nanResult) {
  if (std::isnan(value)) return nanResult;
  if (value <= static_cast<double>(INT_MIN)) return INT_MIN;
  if (value >= static_cast<double>(INT_MAX)) return INT_MAX;
  return static_cast<int>(value);
}

constexpr double kInfinitelyFar = 1.0e15;

void extendRow(const double* in, double* out) {
  out[0] = in[0];
  out[1] = in[1];
  out[2] = in[2];
  out[3] = 1.0;
}

void projectRow(const double* in, double* out) {
  const double w = in[3];
  for (int k = 0; k < 3; ++k) {
    if (w == 0.0) {
      out[k] = std::copysign(kInfinitelyFar, in[k]);
    } else {
      out[k] = w == 1.0 ? in[k] : in[k] / w;
    }
  }
}

}  // namespace

VectorTerm* convertTo4D(const VectorTerm* v, FieldExpression* at) {
  if (v->length != 3) return reportAtExpression(at, "Cannot convert a %dD vector to a 4D vector", v->length);
  VectorTerm* result = VectorTerm::make(4);
  extendRow(v->elements, result->elements);
  return result;
}

MatrixTerm* convertTo4D(const MatrixTerm* m, FieldExpression* at) {
  if (m->cols != 3) return reportAtExpression(at, "Cannot convert a %dD matrix to a 4D matrix", m->cols);
  MatrixTerm* result = MatrixTerm::make(m->rows, 4);
  for (int32_t i = 0; i < m->rows; ++i) extendRow(&m->elements[3 * static_cast<size_t>(i)], &result->at(i, 0));
  return result;
}

VectorTerm* convertTo3D(const VectorTerm* v, FieldExpression* at) {
  if (v->length != 4) return reportAtExpression(at, "Cannot convert a %dD vector to a 3D vector", v->length);
  VectorTerm* result = VectorTerm::make(3);
  projectRow(v->elements, result->elements);
  return result;
}

MatrixTerm* convertTo3D(const MatrixTerm* m, FieldExpression* at) {
  if (m->cols != 4) return reportAtExpression(at, "Cannot convert a %dD matrix to a 3D matrix", m->cols);
  MatrixTerm* result = MatrixTerm::make(m->rows, 3);
  for (int32_t i = 0; i < m->rows; ++i) projectRow(&m->elements[4 * static_cast<size_t>(i)], &result->at(i, 0));
  return result;
}

MatrixTerm* transposeTerm(const VectorTerm* v) {
  MatrixTerm* result = MatrixTerm::make(v->length, 1);
  for (int32_t i = 0; i < v->length; ++i) result->at(i, 0) = v->elements[i];
  return result;
}

MatrixTerm* transposeTerm(const MatrixTerm* m) {
  MatrixTerm* result = MatrixTerm::make(m->cols, m->rows);
  for (int32_t i = 0; i < m->rows; ++i) {
    for (int32_t j = 0; j < m->cols; ++j) result->at(j, i) = m->at(i, j);
  }
  return result;
}

int truncateToIndex(double value) { return truncateSaturating(value, INT_MIN); }

int truncateToInt(double value) { return truncateSaturating(value, 0); }

bool indexFromTerm(const Term* term, int* index) {
  if (term == nullptr || term->kind != kScalarTerm) return false;
  *index = truncateToIndex(static_cast<const ScalarTerm*>(term)->value);
  return true;
}

}  // namespace lumeric
