#include "export/Tessellator.h"

#include <GL/glu.h>

#include <deque>
#include <utility>
#include <memory>

namespace lumeric {

namespace {

Point3 cross(const Point3& u, const Point3& v) {
  return {{u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]}};
}

// The triangle's area vector dotted with `normal`: positive when it winds
// counter-clockwise about it.
double orientation(const std::vector<Point3>& points, const Triangle& t, const Point3& normal) {
  const Point3& a = points[static_cast<size_t>(t[0])];
  const Point3& b = points[static_cast<size_t>(t[1])];
  const Point3& c = points[static_cast<size_t>(t[2])];
  Point3 n = cross({{b[0] - a[0], b[1] - a[1], b[2] - a[2]}}, {{c[0] - a[0], c[1] - a[1], c[2] - a[2]}});
  return n[0] * normal[0] + n[1] * normal[1] + n[2] * normal[2];
}

bool hasArea(const std::vector<Point3>& points, const Triangle& t) {
  const Point3& a = points[static_cast<size_t>(t[0])];
  const Point3& b = points[static_cast<size_t>(t[1])];
  const Point3& c = points[static_cast<size_t>(t[2])];
  Point3 n = cross({{b[0] - a[0], b[1] - a[1], b[2] - a[2]}}, {{c[0] - a[0], c[1] - a[1], c[2] - a[2]}});
  return n[0] != 0 || n[1] != 0 || n[2] != 0;
}

// What GLU's callbacks fill: the corners of the triangles in output order.
struct TessOutput {
  std::vector<int> corners;
  const std::vector<Point3>* points = nullptr;
  // Corner numbers GLU's vertex callbacks hand back; a new point where
  // outlines cross takes the number of its heaviest source.
  std::deque<int> numbers;
  bool failed = false;
};

void GLAPIENTRY onBegin(GLenum, void*) {}
void GLAPIENTRY onEdgeFlag(GLboolean, void*) {}  // asks GLU for separate triangles only
void GLAPIENTRY onVertex(void* vertex, void* data) {
  static_cast<TessOutput*>(data)->corners.push_back(*static_cast<int*>(vertex));
}
void GLAPIENTRY onEnd(void*) {}
void GLAPIENTRY onError(GLenum, void* data) { static_cast<TessOutput*>(data)->failed = true; }
void GLAPIENTRY onCombine(GLdouble[3], void* sources[4], GLfloat weights[4], void** out, void* data) {
  auto* output = static_cast<TessOutput*>(data);
  int best = 0;
  for (int k = 1; k < 4; ++k) {
    if (sources[k] != nullptr && weights[k] > weights[best]) best = k;
  }
  output->numbers.push_back(sources[best] != nullptr ? *static_cast<int*>(sources[best]) : 0);
  *out = &output->numbers.back();
}

struct TessDeleter {
  void operator()(GLUtesselator* tess) const { gluDeleteTess(tess); }
};

std::vector<Triangle> tessellate(const std::vector<Point3>& points, const Point3& normal) {
  std::unique_ptr<GLUtesselator, TessDeleter> tess(gluNewTess());
  if (tess == nullptr) return {};
  TessOutput output;
  output.points = &points;
  using Callback = void(GLAPIENTRY*)();
  gluTessCallback(tess.get(), GLU_TESS_BEGIN_DATA, reinterpret_cast<Callback>(onBegin));
  gluTessCallback(tess.get(), GLU_TESS_EDGE_FLAG_DATA, reinterpret_cast<Callback>(onEdgeFlag));
  gluTessCallback(tess.get(), GLU_TESS_VERTEX_DATA, reinterpret_cast<Callback>(onVertex));
  gluTessCallback(tess.get(), GLU_TESS_END_DATA, reinterpret_cast<Callback>(onEnd));
  gluTessCallback(tess.get(), GLU_TESS_ERROR_DATA, reinterpret_cast<Callback>(onError));
  gluTessCallback(tess.get(), GLU_TESS_COMBINE_DATA, reinterpret_cast<Callback>(onCombine));
  gluTessProperty(tess.get(), GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
  gluTessNormal(tess.get(), normal[0], normal[1], normal[2]);
  std::vector<GLdouble> coordinates(points.size() * 3);
  for (size_t i = 0; i < points.size(); ++i) {
    output.numbers.push_back(static_cast<int>(i));
    for (int k = 0; k < 3; ++k) coordinates[i * 3 + static_cast<size_t>(k)] = points[i][static_cast<size_t>(k)];
  }
  gluTessBeginPolygon(tess.get(), &output);
  gluTessBeginContour(tess.get());
  for (size_t i = 0; i < points.size(); ++i) gluTessVertex(tess.get(), &coordinates[i * 3], &output.numbers[i]);
  gluTessEndContour(tess.get());
  gluTessEndPolygon(tess.get());
  std::vector<Triangle> triangles;
  if (output.failed) return triangles;
  for (size_t i = 0; i + 2 < output.corners.size(); i += 3) {
    triangles.push_back({{output.corners[i], output.corners[i + 1], output.corners[i + 2]}});
  }
  return triangles;
}

}  // namespace

Point3 polygonNormal(const std::vector<Point3>& points) {
  Point3 n{{0, 0, 0}};
  const size_t count = points.size();
  for (size_t i = 0; i < count; ++i) {
    const Point3& p = points[i];
    const Point3& q = points[(i + 1) % count];
    n[0] += (p[1] - q[1]) * (p[2] + q[2]);
    n[1] += (p[2] - q[2]) * (p[0] + q[0]);
    n[2] += (p[0] - q[0]) * (p[1] + q[1]);
  }
  return n;
}

std::vector<Triangle> triangulate(const std::vector<Point3>& points, const Point3& normal, bool convex) {
  std::vector<Triangle> triangles;
  if (points.size() < 3) return triangles;
  if (convex || points.size() == 3) {
    for (size_t i = 1; i + 1 < points.size(); ++i) {
      triangles.push_back({{0, static_cast<int>(i), static_cast<int>(i + 1)}});
    }
  } else {
    triangles = tessellate(points, normal);
  }
  std::vector<Triangle> kept;
  kept.reserve(triangles.size());
  for (Triangle t : triangles) {
    if (!hasArea(points, t)) continue;
    // A fan keeps the outline's own winding, as a viewer draws it; GLU's
    // triangles are turned to face along the normal.
    if (!convex && points.size() > 3 && orientation(points, t, normal) < 0) std::swap(t[1], t[2]);
    kept.push_back(t);
  }
  return kept;
}

}  // namespace lumeric
