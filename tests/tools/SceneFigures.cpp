// World-space figures of a scene, from the primitives that Coin's
// SoCallbackAction generates (triangles, line segments, points). Every figure
// is in world coordinates: each primitive's object-space vertices go through
// the model matrix in force.
//
// The JSON object (keys in this order):
//   complexity        the override given, or null
//   triangles, segments, points     counts of primitives
//   degenerate_triangles            triangles of (nearly) zero area
//   area              total triangle area
//   area_by_colour    {"r g b": area}: the diffuse colour of each triangle,
//                     3 decimals; triangles whose corners differ in colour
//                     (bound per vertex) count under "blended"
//   solid_area, open_area
//                     area of shapes known to be closed and of the others
//                     (see isKnownSolid); open faces are double-sided
//   volume            signed volume (sum of det(v0, v1, v2) / 6) of the
//                     closed shapes, each counted with its front faces out:
//                     a vertexOrdering CLOCKWISE shape and a mirroring model
//                     matrix each flip the sign of Coin's vertex order. An
//                     export whose front faces point outward agrees with it,
//                     one turned inside out (e.g. under a mirror) does not
//   box, triangle_box box of all primitives / of the triangles only
//   outer_box, inner_box, outer_triangle_box, inner_triangle_box
//                     the same boxes with each Sphere, Cone and Cylinder
//                     replaced by its exact box (outer) and by the exact box
//                     of the shape shrunk to the largest one its
//                     tessellation into n segments is sure to contain, which
//                     falls short of the radius r by r(1 - cos(pi/n)) (inner),
//                     n being what Coin uses here (see CurvedShape); the
//                     inner boxes leave out degenerate triangles (of zero
//                     area), which an export may skip
//   curved            {"shapes", "triangles", "area"}: the part of the
//                     figures above that comes from those shapes
//   text              {"shapes", "triangles"}: AsciiText, Text2 and Text3 are
//                     left out of every other figure (Coin's own font)
//   excess_faces, excess_area
//                     faces of IndexedFaceSets whose triangles from Coin
//                     cover more than the polygon (as a planar polygon, from
//                     Newell's normal), and by how much: Coin fans concave
//                     faces under faceType CONVEX (which VRML 1.0 leaves
//                     undefined) and concave quadrilaterals whatever the
//                     face type, and a face that is not planar has no one
//                     area
//   dropped_faces, dropped_area, dropped_box
//                     Coin drops every face after a face of fewer than three
//                     corners in an IndexedFaceSet: these are those faces
//                     (their area as planar polygons) that an export keeps
//   bad_index_faces   faces with an index out of range (Coin reads what
//                     happens to be there; an export skips them)
//   bad_index_points  points of a PointSet past the end of the coordinates,
//                     which Coin draws from whatever follows them: left out
//                     of every other figure, as an export leaves them out
//   lod_nodes         LOD nodes, each traversed through its first child (the
//                     most detailed one) instead of Coin's choice by distance
//   point_sets        PointSets traversed (their colours are not compared)
//
// With Options::listPrimitives, the output is instead one line per primitive
// in world space (text left out): "t" and three corners, front faces
// counter-clockwise for closed shapes, then the colour and 1 for a closed
// shape or 0; "l" and two ends; "p" and a point.
#include "SceneFigures.h"

#include <Inventor/SbMatrix.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/SoPrimitiveVertex.h>
#include <Inventor/details/SoFaceDetail.h>
#include <Inventor/details/SoPointDetail.h>
#include <Inventor/actions/SoCallbackAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoAsciiText.h>
#include <Inventor/nodes/SoComplexity.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoCylinder.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoLOD.h>
#include <Inventor/nodes/SoPointSet.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShape.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText2.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/SoPath.h>
#include <Inventor/lists/SoPathList.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace figures {
namespace {

struct Vec {
  double x = 0, y = 0, z = 0;
};

Vec operator-(const Vec& a, const Vec& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec operator+(const Vec& a, const Vec& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Vec cross(const Vec& a, const Vec& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double dot(const Vec& a, const Vec& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
double length(const Vec& a) { return std::sqrt(dot(a, a)); }
double component(const Vec& v, int axis) { return axis == 0 ? v.x : axis == 1 ? v.y : v.z; }

Vec fromSb(const SbVec3f& v) { return {v[0], v[1], v[2]}; }

Vec transformPoint(const SbMatrix& m, const SbVec3f& p) {
  SbVec3f out;
  m.multVecMatrix(p, out);
  return fromSb(out);
}

Vec transformDirection(const SbMatrix& m, const SbVec3f& d) {
  SbVec3f out;
  m.multDirMatrix(d, out);
  return fromSb(out);
}

struct Box {
  double lo[3] = {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
                  std::numeric_limits<double>::infinity()};
  double hi[3] = {-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                  -std::numeric_limits<double>::infinity()};

  bool empty() const { return lo[0] > hi[0]; }
  void add(const Vec& p) {
    for (int i = 0; i < 3; ++i) {
      lo[i] = std::min(lo[i], component(p, i));
      hi[i] = std::max(hi[i], component(p, i));
    }
  }
  void add(const Box& b) {
    if (b.empty()) return;
    for (int i = 0; i < 3; ++i) {
      lo[i] = std::min(lo[i], b.lo[i]);
      hi[i] = std::max(hi[i], b.hi[i]);
    }
  }
  // A disc of radius r around `centre` spanned by the directions u and v.
  void addDisc(const Vec& centre, const Vec& u, const Vec& v, double r) {
    for (int i = 0; i < 3; ++i) {
      double half = r * std::hypot(component(u, i), component(v, i));
      lo[i] = std::min(lo[i], component(centre, i) - half);
      hi[i] = std::max(hi[i], component(centre, i) + half);
    }
  }
};

// A Sphere, Cone or Cylinder: its exact world box, the box its tessellation
// must reach, and the angles of its vertices around its axis (and, for a
// sphere, from its axis), from which the number of segments is counted.
struct CurvedShape {
  const SoNode* node = nullptr;
  SbMatrix matrix;
  Box primitives;
  std::set<long> around;
  std::set<long> polar;
  bool hasArea = false;  // false: every triangle degenerate (e.g. radius 0)
};

const double kAngleStep = 1e-4;  // radians, for counting distinct angles

long angleKey(double angle) { return std::lround(angle / kAngleStep); }

// The box of `node` under `m` with every radius scaled by `radiusFactor`
// (1: the exact shape; below 1: the largest shape a tessellation contains).
Box curvedBox(const SoNode* node, const SbMatrix& m, double radiusFactor) {
  Box box;
  Vec ex = transformDirection(m, SbVec3f(1, 0, 0));
  Vec ey = transformDirection(m, SbVec3f(0, 1, 0));
  Vec ez = transformDirection(m, SbVec3f(0, 0, 1));
  if (node->isOfType(SoSphere::getClassTypeId())) {
    double r = static_cast<const SoSphere*>(node)->radius.getValue() * radiusFactor;
    Vec c = transformPoint(m, SbVec3f(0, 0, 0));
    for (int i = 0; i < 3; ++i) {
      double half = r * std::sqrt(component(ex, i) * component(ex, i) +
                                  component(ey, i) * component(ey, i) +
                                  component(ez, i) * component(ez, i));
      box.lo[i] = component(c, i) - half;
      box.hi[i] = component(c, i) + half;
    }
  } else if (node->isOfType(SoCylinder::getClassTypeId())) {
    const SoCylinder* cylinder = static_cast<const SoCylinder*>(node);
    float h = cylinder->height.getValue() / 2;
    double r = cylinder->radius.getValue() * radiusFactor;
    int parts = cylinder->parts.getValue();
    bool sides = parts & SoCylinder::SIDES;
    if (sides || (parts & SoCylinder::TOP)) box.addDisc(transformPoint(m, SbVec3f(0, h, 0)), ex, ez, r);
    if (sides || (parts & SoCylinder::BOTTOM)) box.addDisc(transformPoint(m, SbVec3f(0, -h, 0)), ex, ez, r);
  } else if (node->isOfType(SoCone::getClassTypeId())) {
    const SoCone* cone = static_cast<const SoCone*>(node);
    float h = cone->height.getValue() / 2;
    double r = cone->bottomRadius.getValue() * radiusFactor;
    int parts = cone->parts.getValue();
    if (parts != 0) box.addDisc(transformPoint(m, SbVec3f(0, -h, 0)), ex, ez, r);
    if (parts & SoCone::SIDES) box.add(transformPoint(m, SbVec3f(0, h, 0)));
  }
  return box;
}

bool isCurved(const SoNode* node) {
  return node->isOfType(SoSphere::getClassTypeId()) || node->isOfType(SoCone::getClassTypeId()) ||
         node->isOfType(SoCylinder::getClassTypeId());
}

bool isText(const SoNode* node) {
  return node->isOfType(SoAsciiText::getClassTypeId()) || node->isOfType(SoText2::getClassTypeId()) ||
         node->isOfType(SoText3::getClassTypeId());
}

// Closed shapes, whose faces have an outside: Cube and Sphere; Cone and
// Cylinder with all their parts; an IndexedFaceSet that ShapeHints declares
// SOLID with a known vertex ordering. The faces of every other shape are
// double-sided. `orientation` is -1 when Coin's vertex order runs clockwise
// seen from outside.
bool isKnownSolid(const SoNode* node, SoCallbackAction* action, int& orientation) {
  orientation = 1;
  if (node->isOfType(SoCube::getClassTypeId()) || node->isOfType(SoSphere::getClassTypeId())) return true;
  if (node->isOfType(SoCone::getClassTypeId())) {
    return static_cast<const SoCone*>(node)->parts.getValue() == SoCone::ALL;
  }
  if (node->isOfType(SoCylinder::getClassTypeId())) {
    return static_cast<const SoCylinder*>(node)->parts.getValue() == SoCylinder::ALL;
  }
  if (node->isOfType(SoIndexedFaceSet::getClassTypeId())) {
    if (action->getShapeType() != SoShapeHints::SOLID) return false;
    if (action->getVertexOrdering() == SoShapeHints::UNKNOWN_ORDERING) return false;
    if (action->getVertexOrdering() == SoShapeHints::CLOCKWISE) orientation = -1;
    return true;
  }
  return false;
}

// Twice the area of a planar polygon, from Newell's normal.
double polygonArea(const std::vector<Vec>& corners) {
  Vec normal;
  for (size_t i = 0; i < corners.size(); ++i) {
    const Vec& a = corners[i];
    const Vec& b = corners[(i + 1) % corners.size()];
    normal = normal + cross(a, b);
  }
  return length(normal) / 2;
}

struct Figures {
  double complexity = -1;
  long triangles = 0, segments = 0, points = 0, degenerateTriangles = 0;
  double area = 0, solidArea = 0, openArea = 0, volume = 0;
  std::map<std::string, double> areaByColour;
  Box box, triangleBox;
  // The flat primitives' boxes: all of them (outer) and without degenerate
  // triangles (inner), which an export may skip.
  Box flatBox, flatTriangleBox, flatInnerBox, flatInnerTriangleBox;
  std::vector<CurvedShape> curved;
  long curvedTriangles = 0;
  double curvedArea = 0;
  long textShapes = 0, textTriangles = 0;
  long excessFaces = 0;
  double excessArea = 0;
  // The IndexedFaceSet being traversed: each face's area as a planar
  // polygon, and the area of the triangles Coin makes of it.
  std::vector<double> polygonAreas;
  std::map<int, double> coinFaceAreas;
  long droppedFaces = 0, badIndexFaces = 0, badIndexPoints = 0;
  double droppedArea = 0;
  Box droppedBox;
  long lodNodes = 0, pointSets = 0;
  std::string* primitives = nullptr;  // the list, when asked for

  // The shape being traversed.
  const SoNode* shape = nullptr;
  bool shapeIsText = false;
  bool shapeIsSolid = false;
  int shapeOrientation = 1;
  CurvedShape* shapeCurve = nullptr;
};

// Faces of an IndexedFaceSet that Coin cannot show the way VRML 1.0 means
// them (see the header comment of this file).
void inspectFaceSet(const SoIndexedFaceSet* faceSet, SoCallbackAction* action, Figures& f) {
  const SbMatrix& m = action->getModelMatrix();
  int32_t count = action->getNumCoordinates();
  const int32_t* index = faceSet->coordIndex.getValues(0);
  int n = faceSet->coordIndex.getNum();
  bool dropping = false;
  int start = 0;
  while (start < n) {
    int end = start;
    while (end < n && index[end] >= 0) ++end;
    int corners = end - start;
    if (corners > 0 || end < n) {
      bool inRange = true;
      std::vector<Vec> points;
      for (int i = start; i < end; ++i) {
        if (index[i] >= count) {
          inRange = false;
          break;
        }
        points.push_back(transformPoint(m, action->getCoordinate3(index[i])));
      }
      f.polygonAreas.push_back(inRange && corners >= 3 ? polygonArea(points) : 0.0);
      if (!inRange) {
        ++f.badIndexFaces;
      } else if (dropping) {
        ++f.droppedFaces;
        if (corners >= 3) f.droppedArea += polygonArea(points);
        for (const Vec& p : points) f.droppedBox.add(p);
      } else if (corners < 3) {
        dropping = true;
      }
    }
    start = end + 1;
  }
}

// Faces whose triangles cover more than the polygon: concave faces that Coin
// fans (under faceType CONVEX, and quadrilaterals whatever the face type) and
// faces that are not planar.
void settleFaces(Figures& f) {
  for (const auto& entry : f.coinFaceAreas) {
    if (entry.first < 0 || static_cast<size_t>(entry.first) >= f.polygonAreas.size()) continue;
    double excess = entry.second - f.polygonAreas[entry.first];
    if (excess > 1e-6 * entry.second) {
      ++f.excessFaces;
      f.excessArea += excess;
    }
  }
  f.polygonAreas.clear();
  f.coinFaceAreas.clear();
}

SoCallbackAction::Response beforeShape(void* data, SoCallbackAction* action, const SoNode* node) {
  Figures& f = *static_cast<Figures*>(data);
  settleFaces(f);
  f.shape = node;
  f.shapeIsText = isText(node);
  if (f.shapeIsText) ++f.textShapes;
  f.shapeIsSolid = isKnownSolid(node, action, f.shapeOrientation);
  if (action->getModelMatrix().det3() < 0) f.shapeOrientation = -f.shapeOrientation;
  f.shapeCurve = nullptr;
  if (isCurved(node)) {
    f.curved.push_back(CurvedShape());
    f.shapeCurve = &f.curved.back();
    f.shapeCurve->node = node;
    f.shapeCurve->matrix = action->getModelMatrix();
  }
  if (node->isOfType(SoIndexedFaceSet::getClassTypeId())) {
    inspectFaceSet(static_cast<const SoIndexedFaceSet*>(node), action, f);
  }
  if (node->isOfType(SoPointSet::getClassTypeId())) ++f.pointSets;
  return SoCallbackAction::CONTINUE;
}

std::string number(double value);

std::string point(const Vec& p) { return number(p.x) + " " + number(p.y) + " " + number(p.z); }

SbColor diffuseOf(SoCallbackAction* action, const SoPrimitiveVertex* v) {
  SbColor ambient, diffuse, specular, emission;
  float shininess = 0, transparency = 0;
  action->getMaterial(ambient, diffuse, specular, emission, shininess, transparency, v->getMaterialIndex());
  return diffuse;
}

std::string colourKey(const SbColor& c) {
  char text[64];
  // Adding 0.0 turns a rounded -0 into 0.
  std::snprintf(text, sizeof text, "%.3f %.3f %.3f", std::round(c[0] * 1000) / 1000 + 0.0,
                std::round(c[1] * 1000) / 1000 + 0.0, std::round(c[2] * 1000) / 1000 + 0.0);
  return text;
}

// A triangle whose corners have different colours (bound per vertex) is
// counted under "blended": how a face is split into triangles changes the
// mean colour of each, so only their total area can be compared.
const char kBlended[] = "blended";

bool blended(const SbColor& a, const SbColor& b, const SbColor& c) {
  for (int i = 0; i < 3; ++i) {
    float lo = std::min({a[i], b[i], c[i]});
    float hi = std::max({a[i], b[i], c[i]});
    if (hi - lo > 1e-3f) return true;
  }
  return false;
}

// The angles that tell how many segments a curved shape has: around its
// axis (y) and, for a sphere, from it.
void noteAngles(CurvedShape& shape, const SbVec3f& p) {
  double radial = std::hypot(p[0], p[2]);
  bool isSphere = shape.node->isOfType(SoSphere::getClassTypeId());
  if (radial > 1e-6 * std::max(1.0, std::fabs(static_cast<double>(p[1])))) {
    // -pi and pi are one direction.
    double angle = std::atan2(p[0], p[2]);
    if (angle < -M_PI + kAngleStep) angle += 2 * M_PI;
    shape.around.insert(angleKey(angle));
  }
  if (isSphere) shape.polar.insert(angleKey(std::atan2(radial, p[1])));
}

void onTriangle(void* data, SoCallbackAction* action, const SoPrimitiveVertex* v1,
                const SoPrimitiveVertex* v2, const SoPrimitiveVertex* v3) {
  Figures& f = *static_cast<Figures*>(data);
  if (f.shapeIsText) {
    ++f.textTriangles;
    return;
  }
  const SbMatrix& m = action->getModelMatrix();
  Vec a = transformPoint(m, v1->getPoint());
  Vec b = transformPoint(m, v2->getPoint());
  Vec c = transformPoint(m, v3->getPoint());
  double area = length(cross(b - a, c - a)) / 2;
  ++f.triangles;
  f.area += area;
  const SoDetail* detail = v1->getDetail();
  if (!f.polygonAreas.empty() && detail != nullptr && detail->isOfType(SoFaceDetail::getClassTypeId())) {
    f.coinFaceAreas[static_cast<const SoFaceDetail*>(detail)->getFaceIndex()] += area;
  }
  double scale = std::max({length(b - a), length(c - a), length(c - b)});
  bool degenerate = area <= 1e-12 * std::max(scale * scale, 1e-300);
  if (degenerate) ++f.degenerateTriangles;
  SbColor c1 = diffuseOf(action, v1), c2 = diffuseOf(action, v2), c3 = diffuseOf(action, v3);
  SbColor colour = (c1 + c2 + c3) / 3.0f;
  if (f.primitives != nullptr) {
    bool flip = f.shapeIsSolid && f.shapeOrientation < 0;
    *f.primitives += "t " + point(a) + " " + point(flip ? c : b) + " " + point(flip ? b : c) + " " +
                     point(Vec{colour[0], colour[1], colour[2]}) + (f.shapeIsSolid ? " 1\n" : " 0\n");
  }
  f.areaByColour[blended(c1, c2, c3) ? std::string(kBlended) : colourKey(colour)] += area;
  if (f.shapeIsSolid) {
    f.solidArea += area;
    f.volume += f.shapeOrientation * dot(a, cross(b, c)) / 6;
  } else {
    f.openArea += area;
  }
  for (const Vec* p : {&a, &b, &c}) {
    f.box.add(*p);
    f.triangleBox.add(*p);
  }
  if (f.shapeCurve != nullptr) {
    ++f.curvedTriangles;
    f.curvedArea += area;
    for (const SoPrimitiveVertex* v : {v1, v2, v3}) noteAngles(*f.shapeCurve, v->getPoint());
    for (const Vec* p : {&a, &b, &c}) f.shapeCurve->primitives.add(*p);
    if (!degenerate) f.shapeCurve->hasArea = true;
  } else {
    for (const Vec* p : {&a, &b, &c}) {
      f.flatBox.add(*p);
      f.flatTriangleBox.add(*p);
      if (!degenerate) {
        f.flatInnerBox.add(*p);
        f.flatInnerTriangleBox.add(*p);
      }
    }
  }
}

void onSegment(void* data, SoCallbackAction* action, const SoPrimitiveVertex* v1, const SoPrimitiveVertex* v2) {
  Figures& f = *static_cast<Figures*>(data);
  if (f.shapeIsText) return;
  ++f.segments;
  const SbMatrix& m = action->getModelMatrix();
  if (f.primitives != nullptr) {
    *f.primitives += "l " + point(transformPoint(m, v1->getPoint())) + " " +
                     point(transformPoint(m, v2->getPoint())) + "\n";
  }
  for (const SoPrimitiveVertex* v : {v1, v2}) {
    Vec p = transformPoint(m, v->getPoint());
    f.box.add(p);
    f.flatBox.add(p);
    f.flatInnerBox.add(p);
  }
}

void onPoint(void* data, SoCallbackAction* action, const SoPrimitiveVertex* v) {
  Figures& f = *static_cast<Figures*>(data);
  if (f.shapeIsText) return;
  const SoDetail* detail = v->getDetail();
  if (detail != nullptr && detail->isOfType(SoPointDetail::getClassTypeId()) &&
      static_cast<const SoPointDetail*>(detail)->getCoordinateIndex() >= action->getNumCoordinates()) {
    ++f.badIndexPoints;
    return;
  }
  ++f.points;
  Vec p = transformPoint(action->getModelMatrix(), v->getPoint());
  if (f.primitives != nullptr) *f.primitives += "p " + point(p) + "\n";
  f.box.add(p);
  f.flatBox.add(p);
  f.flatInnerBox.add(p);
}

// The fraction of its radius that a curved shape's tessellation is sure to
// reach in every direction: cos(pi/n) around its axis, and for a sphere also
// cos(pi/n) for its n latitude steps from pole to pole counted twice.
double reachedFraction(const CurvedShape& shape) {
  double fraction = 1;
  if (shape.around.size() >= 3) fraction *= std::cos(M_PI / static_cast<double>(shape.around.size()));
  if (shape.node->isOfType(SoSphere::getClassTypeId()) && shape.polar.size() >= 2) {
    double steps = static_cast<double>(shape.polar.size() - 1);  // pole to pole
    fraction *= std::cos(M_PI / (2 * steps));
  }
  return fraction;
}

// Replaces every LOD under `root` by a Switch showing its first child, the
// most detailed one.
int chooseFirstLevels(SoNode* root) {
  SoSearchAction search;
  search.setType(SoLOD::getClassTypeId());
  search.setInterest(SoSearchAction::ALL);
  search.setSearchingAll(TRUE);
  search.apply(root);
  SoPathList& paths = search.getPaths();
  std::set<SoNode*> replaced;
  for (int i = 0; i < paths.getLength(); ++i) {
    SoPath* path = paths[i];
    SoNode* lod = path->getTail();
    if (path->getLength() < 2 || !replaced.insert(lod).second) continue;
    SoGroup* lodGroup = static_cast<SoGroup*>(lod);
    SoSwitch* choice = new SoSwitch;
    for (int c = 0; c < lodGroup->getNumChildren(); ++c) choice->addChild(lodGroup->getChild(c));
    choice->whichChild = lodGroup->getNumChildren() > 0 ? 0 : SO_SWITCH_NONE;
    // Every parent that holds it (DEF/USE), not only the one on this path.
    SoSearchAction parents;
    parents.setNode(lod);
    parents.setInterest(SoSearchAction::ALL);
    parents.setSearchingAll(TRUE);
    parents.apply(root);
    SoPathList& holders = parents.getPaths();
    for (int h = 0; h < holders.getLength(); ++h) {
      SoPath* holder = holders[h];
      SoNode* parent = holder->getNodeFromTail(1);
      if (parent->isOfType(SoGroup::getClassTypeId())) {
        SoGroup* group = static_cast<SoGroup*>(parent);
        int at = group->findChild(lod);
        if (at >= 0) group->replaceChild(at, choice);
      }
    }
  }
  return static_cast<int>(replaced.size());
}

// JSON writing.
std::string number(double value) {
  if (!std::isfinite(value)) return "null";
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value + 0.0);
  return text;
}

std::string boxJson(const Box& b) {
  if (b.empty()) return "null";
  return "{\"min\": [" + number(b.lo[0]) + ", " + number(b.lo[1]) + ", " + number(b.lo[2]) + "], \"max\": [" +
         number(b.hi[0]) + ", " + number(b.hi[1]) + ", " + number(b.hi[2]) + "]}";
}

std::string toJson(const Figures& f, const Box& outer, const Box& inner, const Box& outerTriangles,
                   const Box& innerTriangles) {
  std::string out = "{\n";
  auto field = [&out](const char* name, const std::string& value) {
    if (out.size() > 2) out += ",\n";
    out += std::string("  \"") + name + "\": " + value;
  };
  field("complexity", f.complexity < 0 ? "null" : number(f.complexity));
  field("triangles", std::to_string(f.triangles));
  field("segments", std::to_string(f.segments));
  field("points", std::to_string(f.points));
  field("degenerate_triangles", std::to_string(f.degenerateTriangles));
  field("area", number(f.area));
  std::string colours = "{";
  for (const auto& entry : f.areaByColour) {
    if (colours.size() > 1) colours += ", ";
    colours += "\"" + entry.first + "\": " + number(entry.second);
  }
  field("area_by_colour", colours + "}");
  field("solid_area", number(f.solidArea));
  field("open_area", number(f.openArea));
  field("volume", number(f.volume));
  field("box", boxJson(f.box));
  field("triangle_box", boxJson(f.triangleBox));
  field("outer_box", boxJson(outer));
  field("inner_box", boxJson(inner));
  field("outer_triangle_box", boxJson(outerTriangles));
  field("inner_triangle_box", boxJson(innerTriangles));
  field("curved", "{\"shapes\": " + std::to_string(f.curved.size()) +
                      ", \"triangles\": " + std::to_string(f.curvedTriangles) +
                      ", \"area\": " + number(f.curvedArea) + "}");
  field("text", "{\"shapes\": " + std::to_string(f.textShapes) +
                    ", \"triangles\": " + std::to_string(f.textTriangles) + "}");
  field("excess_faces", std::to_string(f.excessFaces));
  field("excess_area", number(f.excessArea));
  field("dropped_faces", std::to_string(f.droppedFaces));
  field("dropped_area", number(f.droppedArea));
  field("dropped_box", boxJson(f.droppedBox));
  field("bad_index_faces", std::to_string(f.badIndexFaces));
  field("bad_index_points", std::to_string(f.badIndexPoints));
  field("lod_nodes", std::to_string(f.lodNodes));
  field("point_sets", std::to_string(f.pointSets));
  return out + "\n}\n";
}

}  // namespace

std::string computeJson(const std::vector<SoNode*>& roots, const Options& options) {
  SoSeparator* scene = new SoSeparator;
  scene->ref();
  if (options.complexity >= 0) {
    SoComplexity* complexity = new SoComplexity;
    complexity->value = static_cast<float>(options.complexity);
    complexity->type = SoComplexity::OBJECT_SPACE;
    complexity->setOverride(TRUE);
    scene->addChild(complexity);
  }
  for (SoNode* root : roots) scene->addChild(root);

  Figures f;
  std::string primitives;
  if (options.listPrimitives) f.primitives = &primitives;
  f.complexity = options.complexity;
  f.lodNodes = chooseFirstLevels(scene);
  SoCallbackAction action;
  action.addPreCallback(SoShape::getClassTypeId(), beforeShape, &f);
  action.addTriangleCallback(SoShape::getClassTypeId(), onTriangle, &f);
  action.addLineSegmentCallback(SoShape::getClassTypeId(), onSegment, &f);
  action.addPointCallback(SoShape::getClassTypeId(), onPoint, &f);
  action.apply(scene);
  settleFaces(f);
  scene->unref();
  if (options.listPrimitives) return primitives;

  Box outer = f.flatBox, inner = f.flatInnerBox, outerTriangles = f.flatTriangleBox,
      innerTriangles = f.flatInnerTriangleBox;
  for (const CurvedShape& shape : f.curved) {
    if (shape.primitives.empty()) continue;
    Box exact = curvedBox(shape.node, shape.matrix, 1);
    Box reached = curvedBox(shape.node, shape.matrix, reachedFraction(shape));
    outer.add(exact);
    outerTriangles.add(exact);
    if (!shape.hasArea) continue;
    inner.add(reached);
    innerTriangles.add(reached);
  }
  return toJson(f, outer, inner, outerTriangles, innerTriangles);
}

}  // namespace figures
