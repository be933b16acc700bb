// Collects the triangles, segments or points of one shape into an
// ExportMesh: one primitive per material and mode, a vertex shared
// wherever every attribute agrees.
#ifndef LUMERIC_EXPORT_MESHBUILDER_H
#define LUMERIC_EXPORT_MESHBUILDER_H

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "export/ExportScene.h"

namespace lumeric {

// One vertex with every attribute a primitive may carry.
struct Corner {
  std::array<float, 3> position{};
  std::array<float, 3> normal{};
  std::array<float, 2> texCoord{};
  std::array<float, 4> color{{1, 1, 1, 1}};
};

class MeshBuilder {
 public:
  // Which attributes the primitives carry.
  MeshBuilder(bool texCoords, bool colors) : texCoords_(texCoords), colors_(colors) {}

  // A triangle, wound as given.
  void triangle(int material, const Corner& a, const Corner& b, const Corner& c);
  void segment(int material, const Corner& a, const Corner& b);
  void point(int material, const Corner& a);

  bool empty() const { return parts_.empty(); }
  // The primitives made, in the order their materials first appeared.
  ExportMesh take(const std::string& name);

 private:
  using Key = std::array<float, 12>;
  struct KeyHash {
    size_t operator()(const Key& key) const;
  };
  struct Part {
    ExportPrimitive primitive;
    std::unordered_map<Key, uint32_t, KeyHash> vertices;
  };
  Part& part(int material, PrimitiveMode mode);
  uint32_t vertex(Part& part, const Corner& corner);

  bool texCoords_;
  bool colors_;
  std::vector<Part> parts_;
  std::map<std::pair<int, int>, size_t> partIndex_;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_MESHBUILDER_H
