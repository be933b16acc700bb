// Materials as shapes use them: the value a binding selects, made an
// ExportMaterial, and the scene's list of distinct materials.
#ifndef LUMERIC_EXPORT_MATERIALBINDING_H
#define LUMERIC_EXPORT_MATERIALBINDING_H

#include <array>
#include <unordered_map>

#include "export/ExportScene.h"
#include "export/TraversalState.h"

namespace lumeric {

// The scene's materials, each stored once.
class MaterialTable {
 public:
  explicit MaterialTable(ExportScene& scene) : scene_(scene) {}
  // The index of `material` in the scene's list, adding it when new.
  int add(const ExportMaterial& material);

 private:
  ExportScene& scene_;
  std::unordered_multimap<size_t, int> byHash_;
};

// Which bindings give each part or face its material, which each vertex.
inline bool bindsPerPart(int binding) { return binding >= kBindPerPart && binding <= kBindPerFaceIndexed; }
inline bool bindsPerVertex(int binding) { return binding == kBindPerVertex || binding == kBindPerVertexIndexed; }
inline bool bindsIndexed(int binding) {
  return binding == kBindPerPartIndexed || binding == kBindPerFaceIndexed || binding == kBindPerVertexIndexed;
}

// Material value `index` of the state's Material: each list gives its
// element `index`, or its first element when it is shorter.  Texture and
// the sides seen come from the state and the caller.
ExportMaterial materialValue(const TraversalState& state, int index, bool doubleSided, bool unlit);
// The material of a primitive coloured per vertex: value 0 with a white
// diffuse colour and no transparency, as the vertex colours replace them.
ExportMaterial vertexColorMaterial(const TraversalState& state, bool doubleSided, bool unlit);
// Value `index` as a vertex colour: diffuse and 1 - transparency.
std::array<float, 4> vertexColor(const TraversalState& state, int index);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_MATERIALBINDING_H
