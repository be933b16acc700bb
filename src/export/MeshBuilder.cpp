#include "export/MeshBuilder.h"

#include <cstring>

namespace lumeric {

size_t MeshBuilder::KeyHash::operator()(const Key& key) const {
  uint32_t words[12];
  std::memcpy(words, key.data(), sizeof words);
  // 64-bit FNV-1a, cut to size_t where that is narrower (WebAssembly).
  uint64_t hash = 1469598103934665603ull;
  for (uint32_t w : words) hash = (hash ^ w) * 1099511628211ull;
  return static_cast<size_t>(hash);
}

MeshBuilder::Part& MeshBuilder::part(int material, PrimitiveMode mode) {
  auto key = std::make_pair(material, static_cast<int>(mode));
  auto found = partIndex_.find(key);
  if (found != partIndex_.end()) return parts_[found->second];
  partIndex_[key] = parts_.size();
  parts_.emplace_back();
  parts_.back().primitive.mode = mode;
  parts_.back().primitive.material = material;
  return parts_.back();
}

uint32_t MeshBuilder::vertex(Part& part, const Corner& corner) {
  const bool lit = part.primitive.mode == PrimitiveMode::kTriangles;
  Key key{};
  for (int k = 0; k < 3; ++k) key[k] = corner.position[k] + 0.0f;  // -0 and 0 alike
  if (lit) {
    for (int k = 0; k < 3; ++k) key[3 + k] = corner.normal[k] + 0.0f;
  }
  if (texCoords_) {
    key[6] = corner.texCoord[0] + 0.0f;
    key[7] = corner.texCoord[1] + 0.0f;
  }
  if (colors_) {
    for (int k = 0; k < 4; ++k) key[8 + k] = corner.color[k] + 0.0f;
  }
  auto found = part.vertices.find(key);
  if (found != part.vertices.end()) return found->second;
  ExportPrimitive& p = part.primitive;
  const uint32_t index = static_cast<uint32_t>(p.vertexCount());
  p.positions.insert(p.positions.end(), corner.position.begin(), corner.position.end());
  if (lit) p.normals.insert(p.normals.end(), corner.normal.begin(), corner.normal.end());
  if (texCoords_) p.texCoords.insert(p.texCoords.end(), corner.texCoord.begin(), corner.texCoord.end());
  if (colors_) p.colors.insert(p.colors.end(), corner.color.begin(), corner.color.end());
  part.vertices.emplace(key, index);
  return index;
}

void MeshBuilder::triangle(int material, const Corner& a, const Corner& b, const Corner& c) {
  Part& p = part(material, PrimitiveMode::kTriangles);
  const uint32_t ia = vertex(p, a), ib = vertex(p, b), ic = vertex(p, c);
  p.primitive.indices.insert(p.primitive.indices.end(), {ia, ib, ic});
}

void MeshBuilder::segment(int material, const Corner& a, const Corner& b) {
  Part& p = part(material, PrimitiveMode::kLines);
  const uint32_t ia = vertex(p, a), ib = vertex(p, b);
  p.primitive.indices.insert(p.primitive.indices.end(), {ia, ib});
}

void MeshBuilder::point(int material, const Corner& a) {
  Part& p = part(material, PrimitiveMode::kPoints);
  p.primitive.indices.push_back(vertex(p, a));
}

ExportMesh MeshBuilder::take(const std::string& name) {
  ExportMesh mesh;
  mesh.name = name;
  mesh.primitives.reserve(parts_.size());
  for (Part& p : parts_) mesh.primitives.push_back(std::move(p.primitive));
  parts_.clear();
  partIndex_.clear();
  return mesh;
}

}  // namespace lumeric
