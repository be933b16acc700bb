#include "expr/MatrixSolver.h"

#include <cmath>
#include <utility>
#include <vector>

#include "core/QvContext.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// Element (i, j) of an n x n row-major array.
inline double& cell(double* a, int n, int i, int j) { return a[static_cast<size_t>(n) * i + j]; }
inline double cell(const double* a, int n, int i, int j) { return a[static_cast<size_t>(n) * i + j]; }

// The largest column sum of absolute values.
double oneNorm(int n, const double* a) {
  double norm = 0.0;
  for (int j = 0; j < n; ++j) {
    double sum = 0.0;
    for (int i = 0; i < n; ++i) sum += std::fabs(cell(a, n, i, j));
    if (sum > norm) norm = sum;
  }
  return norm;
}

// Gaussian elimination by columns.  A zero pivot column is skipped; the
// zero it leaves on the diagonal is found by the condition estimate.
void eliminate(int n, double* a, int* pivot) {
  for (int k = 0; k < n - 1; ++k) {
    int m = k;
    for (int i = k + 1; i < n; ++i) {
      if (std::fabs(cell(a, n, i, k)) > std::fabs(cell(a, n, m, k))) m = i;
    }
    pivot[k] = m;
    if (m != k) pivot[n - 1] = -pivot[n - 1];
    const double t = cell(a, n, m, k);
    cell(a, n, m, k) = cell(a, n, k, k);
    cell(a, n, k, k) = t;
    if (t == 0.0) continue;
    for (int i = k + 1; i < n; ++i) cell(a, n, i, k) = -cell(a, n, i, k) / t;
    for (int j = k + 1; j < n; ++j) {
      const double u = cell(a, n, m, j);
      cell(a, n, m, j) = cell(a, n, k, j);
      cell(a, n, k, j) = u;
      if (u == 0.0) continue;
      for (int i = k + 1; i < n; ++i) cell(a, n, i, j) += cell(a, n, i, k) * u;
    }
  }
}

// Solves (LU)^T y = e with the signs of e chosen to make y grow; false on a
// zero on the diagonal.
bool solveTransposed(int n, const double* a, const int* pivot, double* work) {
  for (int k = 0; k < n; ++k) {
    double t = 0.0;
    for (int i = 0; i < k; ++i) t += cell(a, n, i, k) * work[i];
    const double ek = t < 0.0 ? -1.0 : 1.0;
    if (cell(a, n, k, k) == 0.0) return false;
    work[k] = -(ek + t) / cell(a, n, k, k);
  }
  for (int k = n - 2; k >= 0; --k) {
    double t = work[k];
    for (int i = k + 1; i < n; ++i) t += cell(a, n, i, k) * work[i];
    work[k] = t;
    const int m = pivot[k];
    if (m != k) std::swap(work[m], work[k]);
  }
  return true;
}

double sumOfMagnitudes(int n, const double* v) {
  double sum = 0.0;
  for (int i = 0; i < n; ++i) sum += std::fabs(v[i]);
  return sum;
}

bool isSquare(const MatrixTerm* m) { return m->rows > 0 && m->rows == m->cols; }

}  // namespace

bool luDecompose(int n, double* a, int* pivot, double* condition) {
  pivot[n - 1] = 1;
  if (n == 1) {
    *condition = 1.0;
    return a[0] != 0.0;
  }
  const double norm = oneNorm(n, a);
  eliminate(n, a, pivot);
  std::vector<double> work(static_cast<size_t>(n));
  if (!solveTransposed(n, a, pivot, work.data())) return false;
  const double yNorm = sumOfMagnitudes(n, work.data());
  luSolve(n, a, pivot, work.data());
  const double zNorm = sumOfMagnitudes(n, work.data());
  *condition = norm * zNorm / yNorm;
  if (*condition < 1.0) *condition = 1.0;
  return true;
}

bool luSolve(int n, const double* a, const int* pivot, double* b) {
  for (int k = 0; k < n - 1; ++k) {
    const int m = pivot[k];
    const double t = b[m];
    b[m] = b[k];
    b[k] = t;
    for (int i = k + 1; i < n; ++i) b[i] += cell(a, n, i, k) * t;
  }
  for (int k = n - 1; k > 0; --k) {
    if (cell(a, n, k, k) == 0.0) return false;
    b[k] /= cell(a, n, k, k);
    const double t = -b[k];
    for (int i = 0; i < k; ++i) b[i] += cell(a, n, i, k) * t;
  }
  if (a[0] == 0.0) return false;
  b[0] /= a[0];
  return true;
}

Term* determinantOf(const MatrixTerm* m, FieldExpression* at) {
  if (!isSquare(m)) {
    return reportAtExpression(at, "Cannot compute the determinate of a %d x %d matrix", m->rows, m->cols);
  }
  const int n = m->rows;
  std::vector<double> factors(m->elements, m->elements + static_cast<size_t>(n) * n);
  std::vector<int> pivot(static_cast<size_t>(n));
  double condition = 0.0;
  if (!luDecompose(n, factors.data(), pivot.data(), &condition)) return ScalarTerm::make(0.0);
  if (condition > kSingularCondition) {
    reportAtExpression(at, "Cannot compute the determinate of singular matrix");
    return ScalarTerm::make(0.0);
  }
  double determinant = pivot[n - 1];
  for (int i = 0; i < n; ++i) determinant *= cell(factors.data(), n, i, i);
  return ScalarTerm::make(determinant);
}

MatrixTerm* inverseOf(const MatrixTerm* m, FieldExpression* at) {
  if (!isSquare(m)) return reportAtExpression(at, "Cannot compute the inverse of a %d x %d matrix", m->rows, m->cols);
  const int n = m->rows;
  MatrixTerm* inverse = MatrixTerm::make(n, n);
  std::vector<double> factors(m->elements, m->elements + static_cast<size_t>(n) * n);
  std::vector<int> pivot(static_cast<size_t>(n));
  std::vector<double> column(static_cast<size_t>(n));
  double condition = 0.0;
  bool solved = luDecompose(n, factors.data(), pivot.data(), &condition) && condition <= kSingularCondition;
  for (int j = 0; solved && j < n; ++j) {
    for (int i = 0; i < n; ++i) column[i] = i == j ? 1.0 : 0.0;
    solved = luSolve(n, factors.data(), pivot.data(), column.data());
    for (int i = 0; solved && i < n; ++i) inverse->at(i, j) = column[i];
  }
  if (!solved) {
    reportAtExpression(at, "Cannot compute the inverse of a matrix");
    for (size_t k = 0; k < static_cast<size_t>(n) * n; ++k) inverse->elements[k] = 0.0;
  }
  return inverse;
}

}  // namespace lumeric
