#include "nodes/generators/WallMesh.h"

#include <cmath>

#include "core/LastingState.h"

namespace lumeric {

void sideNormal(const WallPoint& from, const WallPoint& to, double f, double normal[2]) {
  double dx = to.x - from.x;
  double dz = to.z - from.z;
  if (dx == 0 && dz == 0) {
    normal[0] = -f;
    normal[1] = 0;
    return;
  }
  double length = std::sqrt(dx * dx + dz * dz);
  normal[0] = -dz / length * f;
  normal[1] = dx / length * f;
}

WallPoint* WallMesh::addPoint(double x, double y, double z) {
  points_.emplace_back();
  WallPoint* point = &points_.back();
  point->x = x;
  point->y = y;
  point->z = z;
  return point;
}

void WallMesh::addFace(WallPoint* c0, WallPoint* c1, WallPoint* c2, WallPoint* c3) {
  faces_.push_back(WallFace{{c0, c1, c2, c3}});
}

namespace {

void link(WallPoint* before, WallPoint* after) {
  after->previous = before;
  before->next = after;
}

}  // namespace

void WallMesh::build(const double* path, int rows, int columns, RepeatedNumbers heights,
                     RepeatedNumbers elevations) {
  if (rows < 2) return;
  auto x = [&](int i) { return path[static_cast<size_t>(i) * columns]; };
  auto z = [&](int i) { return path[static_cast<size_t>(i) * columns + 1]; };
  bool closed = x(rows - 1) == x(0) && z(rows - 1) == z(0);
  int n = closed ? rows - 1 : rows;
  faces_.reserve(static_cast<size_t>(n));
  WallPoint* bottom = nullptr;
  WallPoint* top = nullptr;
  for (int i = 0; i < n; ++i) {
    double elevation = elevations.at(i, 0.0);
    double height = heights.at(i, 1.0);
    WallPoint* b = addPoint(x(i), elevation, z(i));
    WallPoint* t = addPoint(x(i), elevation + height, z(i));
    if (i >= 1) {
      addFace(bottom, b, t, top);
      link(bottom, b);
      link(top, t);
    }
    bottom = b;
    top = t;
  }
  if (!closed) return;
  // The first two points of the list are the path's first bottom and top.
  WallPoint* firstBottom = &points_[0];
  WallPoint* firstTop = &points_[1];
  addFace(bottom, firstBottom, firstTop, top);
  link(bottom, firstBottom);
  link(top, firstTop);
}

WallPoint* WallMesh::shiftedPoint(WallPoint* q, double placement, double width) {
  double normal[2] = {0, 0};
  double used = width;
  if (q->previous != nullptr && q->next != nullptr) {
    double m1[2];
    double m2[2];
    sideNormal(*q->previous, *q, placement, m1);
    sideNormal(*q, *q->next, placement, m2);
    normal[0] = (m1[0] + m2[0]) * 0.5;
    normal[1] = (m1[1] + m2[1]) * 0.5;
    // The mean of the two normals is shorter than either at a bend; the
    // width is divided by its projection on one of them so that the point
    // keeps the width from both faces.  Near a reversal the projection
    // vanishes, and the PRECISION step bounds the division.
    double k = std::fabs(m1[0] * normal[0] + m1[1] * normal[1]);
    if (k > precisionQuantum) used = width / k;
  } else if (q->next != nullptr) {
    sideNormal(*q, *q->next, placement, normal);
  } else if (q->previous != nullptr) {
    sideNormal(*q->previous, *q, placement, normal);
  }
  WallPoint* shifted = addPoint(q->x + normal[0] * used, q->y, q->z + normal[1] * used);
  shifted->partner = q;
  q->partner = shifted;
  return shifted;
}

void WallMesh::thicken(double placement, double width) {
  if (placement == 0 || faces_.empty()) return;
  // Only the faces there are now; the loop appends more behind them.
  size_t count = faces_.size();
  faces_.reserve(count * 6);
  for (size_t i = 0; i < count; ++i) {
    WallPoint* c[4];
    for (int k = 0; k < 4; ++k) c[k] = faces_[i].corners[k];
    WallPoint* s[4];
    for (int k = 0; k < 4; ++k) s[k] = shiftedPoint(c[k], placement, width);
    addFace(s[1], s[0], s[3], s[2]);
    addFace(c[1], s[1], s[2], c[2]);
    addFace(s[0], c[0], c[3], s[3]);
    addFace(c[2], s[2], s[3], c[3]);
    addFace(c[0], s[0], s[1], c[1]);
  }
}

}  // namespace lumeric
