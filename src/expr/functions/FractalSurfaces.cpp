#include "expr/functions/FractalSurfaces.h"

#include <cstdint>
#include <cstdlib>

#include "core/LastingState.h"
#include "expr/TermConversions.h"
#include "expr/WorkBudget.h"
#include "expr/functions/FunctionMessages.h"
#include "expr/functions/RandomGenerator.h"

namespace lumeric {

namespace {

// Grids with more than 4096 points on a side are refused rather than left
// to exhaust memory or time.  The subdivision below visits on the order of
// the square of the longer side, not of the number of points, so a thin
// grid (a million rows of six points) would run for hours; with both sides
// capped, the visits stay within a few tens of millions and the element
// counts of both results well inside a term's 32-bit counts.  A terrain of
// 4096 by 4096 points is far beyond what a scene shows.
constexpr int kLargestSide = 4096;

bool refuseLargeGrid(int rows, int cols, FieldExpression* at) {
  if (rows <= kLargestSide && cols <= kLargestSide) return false;
  refuseCall(at, "Cannot make a fractal surface of %d by %d points", rows, cols);
  return true;
}

// The grid being computed by one call: its points and what the recursive
// steps share.  A height equal to `unset` has not been computed yet.
struct FractalGrid {
  MatrixTerm* points;
  int rows;
  int cols;
  double unset;
  double roughness;
  const double* seeds;
  int seedCount;

  double& height(int i, int j) { return points->at(i * cols + j, 1); }
  bool isUnset(int i, int j) { return height(i, j) == unset; }
};

// The displacement factor of one point, drawn when the point is set: from
// -1 to slightly above 1.
double drawDisplacement() { return (nextRandom() * 3.051944088384301e-05 - 0.5) * 2.0; }

// Each step below names the point it may set; the draw happens only for a
// point still unset, so the order of these calls decides every number.
void displaceColumnMidpoint(FractalGrid& g, int row, int cm, int c0, int c1) {
  if (!g.isUnset(row, cm)) return;
  g.height(row, cm) = drawDisplacement() * (c1 - c0) / (g.cols - 1) * g.roughness +
                      (g.height(row, c0) + g.height(row, c1)) * 0.5;
}

void displaceRowMidpoint(FractalGrid& g, int rm, int col, int r0, int r1) {
  if (!g.isUnset(rm, col)) return;
  g.height(rm, col) = drawDisplacement() * (r1 - r0) / (g.rows - 1) * g.roughness +
                      (g.height(r1, col) + g.height(r0, col)) * 0.5;
}

void displaceCentre(FractalGrid& g, int rm, int cm, int c0, int c1, int r0, int r1) {
  if (!g.isUnset(rm, cm)) return;
  g.height(rm, cm) = drawDisplacement() * (std::abs(r1 - r0) + std::abs(c1 - c0)) / (g.rows + g.cols - 2) *
                         g.roughness +
                     (g.height(r1, c0) + g.height(r0, c0) + g.height(r1, c1) + g.height(r0, c1)) * 0.25;
}

// The fourth quadrant of each level is handled by going round the loop
// again rather than by a fourth recursive call.
void subdivide(FractalGrid& g, int c0, int c1, int r0, int r1) {
  for (;;) {
    const int cm = (c0 + c1) / 2;
    const int rm = (r0 + r1) / 2;
    const bool noCol = c0 >= cm;
    const bool noRow = rm <= r0;
    if (!noCol) {
      displaceColumnMidpoint(g, r0, cm, c0, c1);
      displaceColumnMidpoint(g, r1, cm, c0, c1);
    }
    if (rm > r0) {
      displaceRowMidpoint(g, rm, c0, r0, r1);
      displaceRowMidpoint(g, rm, c1, r0, r1);
    }
    if (!noRow && !noCol) displaceCentre(g, rm, cm, c0, c1, r0, r1);
    if (noRow && noCol) return;
    subdivide(g, c0, cm, r0, rm);
    subdivide(g, cm, c1, r0, rm);
    subdivide(g, c0, cm, rm, r1);
    c0 = cm;
    r0 = rm;
  }
}

// Gives an unset point the seed at *position and moves on.
void takeSeed(FractalGrid& g, int i, int j, int* position) {
  if (*position >= g.seedCount || !g.isUnset(i, j)) return;
  g.height(i, j) = g.seeds[(*position)++];
}

// `position` is taken by value: the three inner quadrants of a level all
// start at the same seed, and the fourth (the loop) continues from where
// this level's own reads left it.
void seedFill(FractalGrid& g, int position, int c0, int c1, int r0, int r1) {
  for (;;) {
    const int cm = (c0 + c1) / 2;
    const int rm = (r0 + r1) / 2;
    const bool noCol = c0 >= cm;
    const bool noRow = rm <= r0;
    if (!noRow && !noCol) takeSeed(g, rm, cm, &position);
    if (position + 4 < g.seedCount) {
      if (!noCol) {
        takeSeed(g, r0, cm, &position);
        takeSeed(g, r1, cm, &position);
      }
      if (rm > r0) {
        takeSeed(g, rm, c0, &position);
        takeSeed(g, rm, c1, &position);
      }
    }
    if (position + 4 >= g.seedCount || (noRow && noCol)) return;
    seedFill(g, position, c0, cm, r0, rm);
    seedFill(g, position, cm, c1, r0, rm);
    seedFill(g, position, c0, cm, rm, r1);
    c0 = cm;
    r0 = rm;
  }
}

// A grid with every height unset and the border flattened to 0.
void startGrid(FractalGrid& g) {
  for (int i = 0; i < g.rows; ++i) {
    for (int j = 0; j < g.cols; ++j) {
      double* point = &g.points->at(i * g.cols + j, 0);
      point[0] = i;
      point[1] = g.unset;
      point[2] = j;
    }
  }
  for (int i = 0; i < g.rows; ++i) g.height(i, 0) = g.height(i, g.cols - 1) = 0.0;
  for (int j = 0; j < g.cols; ++j) g.height(0, j) = g.height(g.rows - 1, j) = 0.0;
}

// Counts below 1 give an empty grid; the seeds may be null.
Term* surfaceData(Term* const* arguments, const VectorTerm* seeds, FieldExpression* at) {
  int rows = truncateToIndex(scalarArgument(arguments, 0));
  int cols = truncateToIndex(scalarArgument(arguments, 1));
  if (rows < 1 || cols < 1) rows = cols = 0;
  if (refuseLargeGrid(rows, cols, at)) return nullptr;
  if (!admitValues(static_cast<size_t>(rows) * cols * 3, at)) return nullptr;
  FractalGrid g{MatrixTerm::make(rows * cols, 3), rows, cols, precisionQuantum * 0.1,
                scalarArgument(arguments, 2), nullptr, 0};
  if (rows == 0) return g.points;
  startGrid(g);
  if (seeds != nullptr) {
    g.seeds = seeds->elements;
    g.seedCount = seeds->length;
    seedFill(g, 0, 0, cols - 1, 0, rows - 1);
  }
  subdivide(g, 0, cols - 1, 0, rows - 1);
  return g.points;
}

}  // namespace

Term* fractalSurfaceData(Term* const* arguments, FieldExpression* at) { return surfaceData(arguments, nullptr, at); }

Term* seededFractalSurfaceData(Term* const* arguments, FieldExpression* at) {
  return surfaceData(arguments, vectorArgument(arguments, 3), at);
}

Term* fractalSurfaceIndex(Term* const* arguments, FieldExpression* at) {
  const int rows = truncateToIndex(scalarArgument(arguments, 0));
  const int cols = truncateToIndex(scalarArgument(arguments, 1));
  if (rows < 2 || cols < 2) return VectorTerm::make(0);
  if (refuseLargeGrid(rows, cols, at)) return nullptr;
  if (!admitValues(static_cast<size_t>(rows - 1) * (cols - 1) * 5, at)) return nullptr;
  VectorTerm* indices = VectorTerm::make(5 * (rows - 1) * (cols - 1));
  double* out = indices->elements;
  for (int i = 0; i + 1 < rows; ++i) {
    for (int j = 0; j + 1 < cols; ++j) {
      const int k = i * cols + j;
      *out++ = k;
      *out++ = k + 1;
      *out++ = k + cols + 1;
      *out++ = k + cols;
      *out++ = -1;
    }
  }
  return indices;
}

}  // namespace lumeric
