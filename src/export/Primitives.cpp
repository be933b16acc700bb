#include "export/Primitives.h"

#include <algorithm>
#include <cmath>

#include "export/FieldValues.h"
#include "export/MeshBuilder.h"
#include "export/TextureCoordinates.h"
#include "nodes/QvCone.h"
#include "nodes/QvCube.h"
#include "nodes/QvCylinder.h"
#include "nodes/QvSphere.h"

namespace lumeric {

namespace {

constexpr double kPi = 3.14159265358979323846;

// What every primitive shares: its builder, its materials and the texture
// transformation of the state.
class PrimitiveBuilder {
 public:
  PrimitiveBuilder(ShapeContext& context, bool closed)
      : context_(context), texturing_(context.state.texture >= 0), builder_(texturing_, false),
        perPart_(bindsPerPart(context.state.materialBinding)), doubleSided_(!closed) {}

  // The material of part `part`.
  int material(int part) {
    const int value = perPart_ ? part : 0;
    return context_.materials.add(materialValue(context_.state, value, doubleSided_, false));
  }
  Corner corner(double x, double y, double z, double nx, double ny, double nz, double s, double t) const {
    Corner c;
    c.position = {{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)}};
    c.normal = {{static_cast<float>(nx), static_cast<float>(ny), static_cast<float>(nz)}};
    if (texturing_) {
      c.texCoord = transformTexCoord(context_.state.textureTransform,
                                     TexCoord{{static_cast<float>(s), static_cast<float>(t)}});
    }
    return c;
  }
  // The corners are given counter-clockwise seen from outside for
  // positive sizes; negative sizes mirror the shape, as a viewer draws it.
  // A triangle without area (at a pole, of a zero size) is left out.
  void triangle(int material, const Corner& a, const Corner& b, const Corner& c) {
    float u[3], v[3];
    for (int k = 0; k < 3; ++k) {
      u[k] = b.position[k] - a.position[k];
      v[k] = c.position[k] - a.position[k];
    }
    const float n[3] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
    if (n[0] == 0 && n[1] == 0 && n[2] == 0) return;
    builder_.triangle(material, a, b, c);
  }
  void quad(int material, const Corner& a, const Corner& b, const Corner& c, const Corner& d) {
    triangle(material, a, b, c);
    triangle(material, a, c, d);
  }
  ExportMesh take() { return builder_.take(""); }

 private:
  ShapeContext& context_;
  bool texturing_;
  MeshBuilder builder_;
  bool perPart_;
  bool doubleSided_;
};

// Around the Y axis from the back (-Z), counter-clockwise seen from above.
double aroundX(double s) { return -std::sin(2 * kPi * s); }
double aroundZ(double s) { return -std::cos(2 * kPi * s); }

// A flat disc at height y facing `up` (+1 or -1), texture mapped as the
// square around it seen from that side.
void disc(PrimitiveBuilder& b, int material, double radius, double y, double up, int segments) {
  const Corner centre = b.corner(0, y, 0, 0, up, 0, 0.5, 0.5);
  for (int i = 0; i < segments; ++i) {
    const double s0 = static_cast<double>(i) / segments, s1 = static_cast<double>(i + 1) / segments;
    const double x0 = radius * aroundX(s0), z0 = radius * aroundZ(s0);
    const double x1 = radius * aroundX(s1), z1 = radius * aroundZ(s1);
    const double tSign = up > 0 ? -1 : 1;
    const Corner first = b.corner(x0, y, z0, 0, up, 0, 0.5 + aroundX(s0) / 2, 0.5 + tSign * aroundZ(s0) / 2);
    const Corner second = b.corner(x1, y, z1, 0, up, 0, 0.5 + aroundX(s1) / 2, 0.5 + tSign * aroundZ(s1) / 2);
    // Around the axis from the back the points turn counter-clockwise seen
    // from above.
    if (up > 0) {
      b.triangle(material, centre, first, second);
    } else {
      b.triangle(material, centre, second, first);
    }
  }
}

int segmentsOf(ShapeContext& context) { return std::max(3, context.segments); }

}  // namespace

int segmentsFor(float complexity, int tessellation) {
  if (tessellation > 0) return std::min(1024, std::max(3, tessellation));
  const double c = std::isfinite(complexity) ? std::min(1.0f, std::max(0.0f, complexity)) : 0.5;
  return std::max(3, static_cast<int>(std::lround(4 + 40 * c)));
}

ExportMesh cubeMesh(QvCube& node, ShapeContext& context) {
  PrimitiveBuilder b(context, true);
  const double half[3] = {numberIn(node.width) / 2, numberIn(node.height) / 2, numberIn(node.depth) / 2};
  // Normal, then the directions S and T run along, for the faces in order.
  static const int kFaces[6][3][3] = {
      {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},    // front
      {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}},  // back
      {{-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},   // left
      {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}},   // right
      {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}},   // top
      {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},   // bottom
  };
  for (int f = 0; f < 6; ++f) {
    const int material = b.material(f);
    const auto& n = kFaces[f][0];
    const auto& u = kFaces[f][1];
    const auto& v = kFaces[f][2];
    auto at = [&](double s, double t) {
      double p[3];
      for (int k = 0; k < 3; ++k) p[k] = (n[k] + (2 * s - 1) * u[k] + (2 * t - 1) * v[k]) * half[k];
      return b.corner(p[0], p[1], p[2], n[0], n[1], n[2], s, t);
    };
    b.quad(material, at(0, 0), at(1, 0), at(1, 1), at(0, 1));
  }
  return b.take();
}

ExportMesh sphereMesh(QvSphere& node, ShapeContext& context) {
  PrimitiveBuilder b(context, true);
  const double r = numberIn(node.radius);
  const int segments = segmentsOf(context);
  const int bands = std::max(2, segments / 2);
  const int material = b.material(0);
  auto at = [&](int i, int j) {
    const double s = static_cast<double>(i) / segments, t = static_cast<double>(j) / bands;
    // The poles exactly: their bands' triangles without area are left out.
    const bool pole = j == 0 || j == bands;
    const double ny = pole ? (j == 0 ? -1 : 1) : -std::cos(kPi * t), ring = pole ? 0 : std::sin(kPi * t);
    const double nx = ring * aroundX(s), nz = ring * aroundZ(s);
    return b.corner(r * nx, r * ny, r * nz, nx, ny, nz, s, t);
  };
  for (int j = 0; j < bands; ++j) {
    for (int i = 0; i < segments; ++i) b.quad(material, at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1));
  }
  return b.take();
}

ExportMesh cylinderMesh(QvCylinder& node, ShapeContext& context) {
  const int parts = node.parts.value;
  PrimitiveBuilder b(context, (parts & 7) == 7);
  const double r = numberIn(node.radius), h = numberIn(node.height) / 2;
  const int segments = segmentsOf(context);
  if (parts & 1) {
    const int material = b.material(0);
    for (int i = 0; i < segments; ++i) {
      const double s0 = static_cast<double>(i) / segments, s1 = static_cast<double>(i + 1) / segments;
      auto at = [&](double s, double y, double t) {
        return b.corner(r * aroundX(s), y, r * aroundZ(s), aroundX(s), 0, aroundZ(s), s, t);
      };
      b.quad(material, at(s0, -h, 0), at(s1, -h, 0), at(s1, h, 1), at(s0, h, 1));
    }
  }
  if (parts & 2) disc(b, b.material(1), r, h, 1, segments);
  if (parts & 4) disc(b, b.material(2), r, -h, -1, segments);
  return b.take();
}

ExportMesh coneMesh(QvCone& node, ShapeContext& context) {
  const int parts = node.parts.value;
  PrimitiveBuilder b(context, (parts & 3) == 3);
  const double r = numberIn(node.bottomRadius), height = numberIn(node.height), h = height / 2;
  const int segments = segmentsOf(context);
  if (parts & 1) {
    const int material = b.material(0);
    auto at = [&](double s, double radius, double y, double t) {
      const double length = std::sqrt(height * height + r * r);
      const double nx = length > 0 ? height * aroundX(s) / length : 0, ny = length > 0 ? r / length : 1;
      const double nz = length > 0 ? height * aroundZ(s) / length : 0;
      return b.corner(radius * aroundX(s), y, radius * aroundZ(s), nx, ny, nz, s, t);
    };
    for (int i = 0; i < segments; ++i) {
      const double s0 = static_cast<double>(i) / segments, s1 = static_cast<double>(i + 1) / segments;
      b.triangle(material, at(s0, r, -h, 0), at(s1, r, -h, 0), at((s0 + s1) / 2, 0, h, 1));
    }
  }
  if (parts & 2) disc(b, b.material(1), r, -h, -1, segments);
  return b.take();
}

}  // namespace lumeric
