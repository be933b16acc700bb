// Binary STL: one solid in world coordinates.  Each triangle of every
// placed mesh is written as a facet with its normal computed from its world
// corners; under a mirror the corners are taken the other way round, so
// that the front stays outside.  STL has no lines or points: they are left
// out with one warning.  The file is streamed to its target (ExportFiles.h).
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "export/formats/ExportFiles.h"
#include "export/formats/ExportText.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {

namespace {

constexpr size_t kHeaderSize = 80;
constexpr size_t kFacetSize = 50;

// Little-endian, as STL is, whatever the host.
void putUint32(std::string& out, size_t at, uint32_t value) {
  for (int i = 0; i < 4; ++i) out[at + i] = static_cast<char>((value >> (8 * i)) & 0xff);
}

void appendFloat(std::string& out, float value) {
  uint32_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  const size_t at = out.size();
  out.resize(at + 4);
  putUint32(out, at, bits);
}

std::array<double, 3> facetNormal(const std::array<double, 3> (&p)[3]) {
  const double u[3] = {p[1][0] - p[0][0], p[1][1] - p[0][1], p[1][2] - p[0][2]};
  const double v[3] = {p[2][0] - p[0][0], p[2][1] - p[0][1], p[2][2] - p[0][2]};
  std::array<double, 3> n{{u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]}};
  const double length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
  if (!(length > 0) || !std::isfinite(length)) return {{0, 0, 0}};
  for (double& c : n) c /= length;
  return n;
}

// The world corners of `primitive` placed by `placement`; false when one
// is not finite.
bool placeCorners(const ExportPrimitive& primitive, const WorldPlacement& placement,
                  std::vector<std::array<double, 3>>& world) {
  world.resize(primitive.vertexCount());
  for (size_t v = 0; v < world.size(); ++v) {
    world[v] = placement.point(&primitive.positions[v * 3]);
    for (double c : world[v]) {
      if (!std::isfinite(c)) return false;
    }
  }
  return true;
}

void appendFacets(std::string& out, const ExportPrimitive& primitive, const std::vector<std::array<double, 3>>& world,
                  bool mirrored) {
  const size_t triangles = primitive.indices.size() / 3;
  out.reserve(out.size() + triangles * kFacetSize);
  for (size_t t = 0; t < triangles; ++t) {
    const std::array<uint32_t, 3> corner = triangleCorners(primitive, t, mirrored);
    const std::array<double, 3> p[3] = {world[corner[0]], world[corner[1]], world[corner[2]]};
    for (double c : facetNormal(p)) appendFloat(out, static_cast<float>(c));
    for (const auto& point : p) {
      for (double c : point) appendFloat(out, static_cast<float>(c));
    }
    out.append(2, '\0');  // attribute byte count
  }
}

// A primitive to write, and the node that places it.
struct PlacedPrimitive {
  const ExportPrimitive* primitive;
  const Matrix4* matrix;
};

// The facets are written as the file is, a piece at a time: a LOOP of
// 10^5 balls gives gigabytes of STL from a scene of megabytes.
int streamFacets(const std::string& header, const std::vector<PlacedPrimitive>& placed, FILE* stream) {
  SpillingText out(stream);
  out.text() = header;
  std::vector<std::array<double, 3>> world;
  for (const PlacedPrimitive& p : placed) {
    const WorldPlacement placement(*p.matrix);
    placeCorners(*p.primitive, placement, world);
    appendFacets(out.text(), *p.primitive, world, placement.mirrored());
    if (out.spill() != 0) break;
  }
  return out.spill(true);
}

}  // namespace

bool writeStl(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  std::string header(kHeaderSize, ' ');
  const std::string title = generatorName() + " binary STL";
  header.replace(0, std::min(title.size(), kHeaderSize), title, 0, kHeaderSize);
  header.append(4, '\0');  // the facet count, filled in below
  size_t facets = 0;
  bool leftOut = false;
  std::vector<PlacedPrimitive> placed;
  std::vector<std::array<double, 3>> world;
  for (const ExportNode& node : scene.nodes) {
    if (node.mesh < 0 || static_cast<size_t>(node.mesh) >= scene.meshes.size()) continue;
    const WorldPlacement placement(node.matrix);
    for (const ExportPrimitive& primitive : scene.meshes[node.mesh].primitives) {
      if (primitive.mode != PrimitiveMode::kTriangles) {
        leftOut = leftOut || !primitive.indices.empty();
        continue;
      }
      if (!primitiveIsWellFormed(primitive)) {
        messages.countWarning("Malformed primitive left out");
        continue;
      }
      if (!placeCorners(primitive, placement, world)) {
        messages.countWarning("Primitive with a coordinate that is not finite left out");
        continue;
      }
      placed.push_back(PlacedPrimitive{&primitive, &node.matrix});
      facets += primitive.indices.size() / 3;
    }
  }
  if (facets > UINT32_MAX) {
    messages.error("Too many triangles for STL: " + std::to_string(facets));
    return false;
  }
  putUint32(header, kHeaderSize, static_cast<uint32_t>(facets));
  if (leftOut) messages.warning("Lines and points left out of STL");
  files.push_back(ExportedFile{path, std::string(), [header, placed = std::move(placed)](FILE* stream) {
                                 return streamFacets(header, placed, stream);
                               }});
  return true;
}

}  // namespace lumeric
