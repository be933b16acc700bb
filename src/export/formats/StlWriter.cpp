// Binary STL: one solid in world coordinates.  Each triangle of every
// placed mesh is written as a facet with its normal computed from its world
// corners; under a mirror the corners are taken the other way round, so
// that the front stays outside.  STL has no lines or points: they are left
// out with one warning.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

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

// Appends the facets of one primitive placed by `placement`; returns how
// many, or -1 (and nothing appended) when a corner is not finite.
long appendFacets(std::string& out, const ExportPrimitive& primitive, const WorldPlacement& placement) {
  std::vector<std::array<double, 3>> world(primitive.vertexCount());
  for (size_t v = 0; v < world.size(); ++v) {
    world[v] = placement.point(&primitive.positions[v * 3]);
    for (double c : world[v]) {
      if (!std::isfinite(c)) return -1;
    }
  }
  const size_t triangles = primitive.indices.size() / 3;
  out.reserve(out.size() + triangles * kFacetSize);
  for (size_t t = 0; t < triangles; ++t) {
    const std::array<uint32_t, 3> corner = triangleCorners(primitive, t, placement.mirrored());
    const std::array<double, 3> p[3] = {world[corner[0]], world[corner[1]], world[corner[2]]};
    for (double c : facetNormal(p)) appendFloat(out, static_cast<float>(c));
    for (const auto& point : p) {
      for (double c : point) appendFloat(out, static_cast<float>(c));
    }
    out.append(2, '\0');  // attribute byte count
  }
  return static_cast<long>(triangles);
}

}  // namespace

bool writeStl(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  std::string out(kHeaderSize, ' ');
  const std::string title = generatorName() + " binary STL";
  out.replace(0, std::min(title.size(), kHeaderSize), title, 0, kHeaderSize);
  out.append(4, '\0');  // the facet count, filled in below
  size_t facets = 0;
  bool leftOut = false;
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
      const long added = appendFacets(out, primitive, placement);
      if (added < 0) {
        messages.countWarning("Primitive with a coordinate that is not finite left out");
        continue;
      }
      facets += static_cast<size_t>(added);
    }
  }
  if (facets > UINT32_MAX) {
    messages.error("Too many triangles for STL: " + std::to_string(facets));
    return false;
  }
  putUint32(out, kHeaderSize, static_cast<uint32_t>(facets));
  if (leftOut) messages.warning("Lines and points left out of STL");
  files.push_back(ExportedFile{path, std::move(out)});
  return true;
}

}  // namespace lumeric
