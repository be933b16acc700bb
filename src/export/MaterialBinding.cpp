#include "export/MaterialBinding.h"

#include <cstring>
#include <functional>
#include <string>

namespace lumeric {

namespace {

// Element `index` of a material list; an index past the end wraps around,
// as viewers cycle through a list shorter than the binding needs.
template <class T>
const T& valueAt(const std::vector<T>& list, int index, const T& fallback) {
  if (list.empty()) return fallback;
  if (index < 0) return list.front();
  return list[static_cast<size_t>(index) % list.size()];
}

size_t hashOf(const ExportMaterial& m) {
  std::string bytes = m.name;
  auto add = [&](const void* p, size_t n) { bytes.append(static_cast<const char*>(p), n); };
  add(m.diffuse.data(), sizeof m.diffuse);
  add(m.emissive.data(), sizeof m.emissive);
  add(&m.transparency, sizeof m.transparency);
  add(&m.texture, sizeof m.texture);
  return std::hash<std::string>()(bytes);
}

// A Material that gives only emissive colours (its ambient, diffuse and
// specular lists empty) is not lit: viewers show its emissive colours as
// they are.
bool emissiveOnly(const MaterialValues& values) {
  return values.ambient.empty() && values.diffuse.empty() && values.specular.empty() && !values.emissive.empty();
}

}  // namespace

int MaterialTable::add(const ExportMaterial& material) {
  const size_t hash = hashOf(material);
  auto range = byHash_.equal_range(hash);
  for (auto it = range.first; it != range.second; ++it) {
    if (scene_.materials[static_cast<size_t>(it->second)] == material) return it->second;
  }
  const int index = static_cast<int>(scene_.materials.size());
  scene_.materials.push_back(material);
  byHash_.emplace(hash, index);
  return index;
}

ExportMaterial materialValue(const TraversalState& state, int index, bool doubleSided, bool unlit) {
  const MaterialValues& values = *state.material;
  const MaterialValues defaults;
  ExportMaterial m;
  m.name = values.name;
  if (!m.name.empty() && values.count() > 1) m.name += "_" + std::to_string(index);
  m.ambient = valueAt(values.ambient, index, defaults.ambient.front());
  m.diffuse = valueAt(values.diffuse, index, defaults.diffuse.front());
  m.specular = valueAt(values.specular, index, defaults.specular.front());
  m.emissive = valueAt(values.emissive, index, defaults.emissive.front());
  m.shininess = valueAt(values.shininess, index, defaults.shininess.front());
  m.transparency = valueAt(values.transparency, index, defaults.transparency.front());
  m.texture = state.texture;
  m.doubleSided = doubleSided;
  m.unlit = unlit;
  if (emissiveOnly(values)) {
    m.diffuse = m.emissive;
    m.unlit = true;
  }
  return m;
}

ExportMaterial vertexColorMaterial(const TraversalState& state, bool doubleSided, bool unlit) {
  ExportMaterial m = materialValue(state, 0, doubleSided, unlit);
  m.diffuse = Color3{{1, 1, 1}};
  m.transparency = 0;
  return m;
}

std::array<float, 4> vertexColor(const TraversalState& state, int index) {
  const MaterialValues& values = *state.material;
  const Color3 diffuse = emissiveOnly(values) ? valueAt(values.emissive, index, Color3{{0, 0, 0}})
                                              : valueAt(values.diffuse, index, Color3{{0.8f, 0.8f, 0.8f}});
  const float transparency = valueAt(values.transparency, index, 0.0f);
  return {{diffuse[0], diffuse[1], diffuse[2], 1.0f - transparency}};
}

}  // namespace lumeric
