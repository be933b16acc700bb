#include "export/FaceSets.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "export/FieldValues.h"
#include "export/MeshBuilder.h"
#include "export/Normals.h"
#include "export/TextureCoordinates.h"
#include "nodes/QvIndexedFaceSet.h"
#include "nodes/QvIndexedLineSet.h"
#include "nodes/QvPointSet.h"

namespace lumeric {

namespace {

// An index list as VRML 1.0 defaults it ([-1]) counts as not given.
bool given(const std::vector<int>& list) { return !list.empty() && !(list.size() == 1 && list[0] == -1); }

int entry(const std::vector<int>& list, size_t at, int fallback) {
  return at < list.size() && list[at] >= 0 ? list[at] : fallback;
}

Point3 pointAt(const Points& points, int index) {
  const size_t i = static_cast<size_t>(index) * 3;
  return {{points[i], points[i + 1], points[i + 2]}};
}

std::array<float, 3> toFloat(const Point3& p) {
  return {{static_cast<float>(p[0]), static_cast<float>(p[1]), static_cast<float>(p[2])}};
}

// Point numbers that are equal for points at the same position.
std::vector<int> positionNumbers(const Points& points) {
  struct Hash {
    size_t operator()(const std::array<float, 3>& p) const {
      std::hash<float> h;
      return h(p[0]) * 31 * 31 + h(p[1]) * 31 + h(p[2]);
    }
  };
  std::unordered_map<std::array<float, 3>, int, Hash> seen;
  const size_t count = points.size() / 3;
  std::vector<int> numbers(count);
  for (size_t i = 0; i < count; ++i) {
    std::array<float, 3> p{{points[i * 3] + 0.0f, points[i * 3 + 1] + 0.0f, points[i * 3 + 2] + 0.0f}};
    numbers[i] = seen.emplace(p, static_cast<int>(i)).first->second;
  }
  return numbers;
}

// One face read from coordIndex: its entries in output order.
struct Face {
  std::vector<size_t> entries;  // positions in coordIndex
  int number = 0;               // faces before it
  int firstVertex = 0;          // vertices before it
  size_t start = 0;
  Point3 normal{{0, 0, 1}};     // unit
};

}  // namespace

ExportMesh indexedFaceSetMesh(QvIndexedFaceSet& node, ShapeContext& context) {
  const TraversalState& state = context.state;
  const Points& coords = *state.coordinates;
  const int pointCount = static_cast<int>(coords.size() / 3);
  const std::vector<int> coordIndex = integersIn(node.coordIndex);
  const std::vector<int> materialIndex = integersIn(node.materialIndex);
  const std::vector<int> normalIndex = integersIn(node.normalIndex);
  const std::vector<int> texIndex = integersIn(node.textureCoordIndex);
  const std::vector<int> positions = positionNumbers(coords);

  const bool clockwise = state.vertexOrdering == kClockwise;
  const bool convex = state.faceType != kUnknownFaceType;
  const bool doubleSided = !(state.shapeType == kSolid && state.vertexOrdering != kUnknownOrdering);
  const int materialBinding = state.materialBinding;
  const bool colors = bindsPerVertex(materialBinding);
  const bool texturing = state.texture >= 0;

  // The faces, with the bad ones counted and left out.
  std::vector<Face> faces;
  int faceNumber = 0, vertexNumber = 0;
  for (size_t i = 0; i < coordIndex.size();) {
    const size_t start = i;
    while (i < coordIndex.size() && coordIndex[i] != -1) ++i;
    const size_t end = i;
    if (i < coordIndex.size()) ++i;
    if (end == start) continue;
    Face face;
    face.number = faceNumber++;
    face.firstVertex = vertexNumber;
    face.start = start;
    vertexNumber += static_cast<int>(end - start);
    bool inRange = true;
    std::vector<int> distinct;
    for (size_t k = start; k < end; ++k) {
      if (coordIndex[k] < 0 || coordIndex[k] >= pointCount) {
        inRange = false;
        break;
      }
      distinct.push_back(positions[static_cast<size_t>(coordIndex[k])]);
    }
    if (!inRange) {
      context.messages.countWarning(kIndexOutOfRange);
      continue;
    }
    std::sort(distinct.begin(), distinct.end());
    if (std::unique(distinct.begin(), distinct.end()) - distinct.begin() < 3) {
      context.messages.countWarning(kDegenerateFace);
      continue;
    }
    for (size_t k = start; k < end; ++k) face.entries.push_back(k);
    if (clockwise) std::reverse(face.entries.begin(), face.entries.end());
    std::vector<Point3> points;
    for (size_t k : face.entries) points.push_back(pointAt(coords, coordIndex[k]));
    const Point3 normal = polygonNormal(points);
    if (normal[0] == 0 && normal[1] == 0 && normal[2] == 0) {
      context.messages.countWarning(kDegenerateFace);
      continue;
    }
    face.normal = normalized(normal);
    faces.push_back(std::move(face));
  }

  // Normals of the corners, face after face, when the scene gives none.
  std::vector<Point3> generated;
  int normalBinding = state.normalBinding;
  if (normalBinding == kBindDefault) normalBinding = kBindPerVertexIndexed;
  if (!state.normalsGiven) {
    std::vector<std::vector<int>> facePoints;
    std::vector<Point3> faceNormals;
    for (const Face& face : faces) {
      std::vector<int> numbers;
      for (size_t k : face.entries) numbers.push_back(positions[static_cast<size_t>(coordIndex[k])]);
      facePoints.push_back(std::move(numbers));
      faceNormals.push_back(face.normal);
    }
    generated = creaseNormals(facePoints, faceNormals, state.creaseAngle);
  }
  const Points& normals = *state.normals;
  const int normalCount = static_cast<int>(normals.size() / 3);

  // The default texture coordinates span the box of the points used.
  std::vector<Point3> used;
  if (texturing && !state.textureCoordinatesGiven) {
    for (const Face& face : faces) {
      for (size_t k : face.entries) used.push_back(pointAt(coords, coordIndex[k]));
    }
  }
  const BoxMapping box(used);
  const Points& texPoints = *state.textureCoordinates;
  const int texCount = static_cast<int>(texPoints.size() / 2);

  MeshBuilder builder(texturing, colors);
  const int sharedMaterial =
      colors ? context.materials.add(vertexColorMaterial(state, doubleSided, false))
             : (bindsPerPart(materialBinding) ? -1 : context.materials.add(materialValue(state, 0, doubleSided, false)));
  size_t cornerOffset = 0;
  for (const Face& face : faces) {
    int material = sharedMaterial;
    if (material < 0) {
      int value = face.number;
      if (bindsIndexed(materialBinding)) value = entry(materialIndex, static_cast<size_t>(face.number), face.number);
      material = context.materials.add(materialValue(state, value, doubleSided, false));
    }
    std::vector<Corner> corners;
    std::vector<Point3> points;
    for (size_t j = 0; j < face.entries.size(); ++j) {
      const size_t k = face.entries[j];
      const int vertex = face.firstVertex + static_cast<int>(k - face.start);
      Corner corner;
      const Point3 p = pointAt(coords, coordIndex[k]);
      points.push_back(p);
      corner.position = toFloat(p);
      if (!state.normalsGiven) {
        corner.normal = toFloat(generated[cornerOffset + j]);
      } else {
        int n = 0;
        switch (normalBinding) {
          case kBindOverall: n = 0; break;
          case kBindPerPart: case kBindPerFace: n = face.number; break;
          case kBindPerPartIndexed: case kBindPerFaceIndexed:
            n = entry(normalIndex, static_cast<size_t>(face.number), face.number);
            break;
          case kBindPerVertex: n = vertex; break;
          default: n = given(normalIndex) ? entry(normalIndex, k, -1) : coordIndex[k]; break;
        }
        corner.normal = toFloat(n >= 0 && n < normalCount ? normalized(pointAt(normals, n)) : face.normal);
      }
      if (texturing) {
        TexCoord st{{0, 0}};
        if (state.textureCoordinatesGiven) {
          const int t = given(texIndex) ? entry(texIndex, k, -1) : coordIndex[k];
          if (t >= 0 && t < texCount) {
            st = {{texPoints[static_cast<size_t>(t) * 2], texPoints[static_cast<size_t>(t) * 2 + 1]}};
          }
        } else {
          st = box.at(p);
        }
        corner.texCoord = transformTexCoord(state.textureTransform, st);
      }
      if (colors) {
        const int value = materialBinding == kBindPerVertex
                              ? vertex
                              : (given(materialIndex) ? entry(materialIndex, k, 0) : coordIndex[k]);
        corner.color = vertexColor(state, value);
      }
      corners.push_back(corner);
    }
    cornerOffset += face.entries.size();
    for (const Triangle& t : triangulate(points, face.normal, convex)) {
      builder.triangle(material, corners[static_cast<size_t>(t[0])], corners[static_cast<size_t>(t[1])],
                       corners[static_cast<size_t>(t[2])]);
    }
  }
  return builder.take("");
}

ExportMesh indexedLineSetMesh(QvIndexedLineSet& node, ShapeContext& context) {
  const TraversalState& state = context.state;
  const Points& coords = *state.coordinates;
  const int pointCount = static_cast<int>(coords.size() / 3);
  const std::vector<int> coordIndex = integersIn(node.coordIndex);
  const std::vector<int> materialIndex = integersIn(node.materialIndex);
  const int binding = state.materialBinding;
  const bool colors = bindsPerVertex(binding);
  MeshBuilder builder(false, colors);
  const int sharedMaterial = colors ? context.materials.add(vertexColorMaterial(state, true, true))
                                    : (bindsPerPart(binding) ? -1 : context.materials.add(materialValue(state, 0, true, true)));
  int lineNumber = 0, segmentNumber = 0, vertexNumber = 0;
  for (size_t i = 0; i < coordIndex.size();) {
    const size_t start = i;
    while (i < coordIndex.size() && coordIndex[i] != -1) ++i;
    const size_t end = i;
    if (i < coordIndex.size()) ++i;
    if (end == start) continue;
    const int line = lineNumber++;
    const int firstSegment = segmentNumber, firstVertex = vertexNumber;
    segmentNumber += static_cast<int>(end - start) - 1;
    vertexNumber += static_cast<int>(end - start);
    bool inRange = true;
    for (size_t k = start; k < end; ++k) inRange = inRange && coordIndex[k] >= 0 && coordIndex[k] < pointCount;
    if (!inRange) {
      context.messages.countWarning(kIndexOutOfRange);
      continue;
    }
    auto cornerAt = [&](size_t k) {
      Corner corner;
      corner.position = toFloat(pointAt(coords, coordIndex[k]));
      if (colors) {
        const int value = binding == kBindPerVertex ? firstVertex + static_cast<int>(k - start)
                                                    : (given(materialIndex) ? entry(materialIndex, k, 0) : coordIndex[k]);
        corner.color = vertexColor(state, value);
      }
      return corner;
    };
    for (size_t k = start; k + 1 < end; ++k) {
      int material = sharedMaterial;
      if (material < 0) {
        const bool perSegment = binding == kBindPerPart || binding == kBindPerPartIndexed;
        int value = perSegment ? firstSegment + static_cast<int>(k - start) : line;
        if (bindsIndexed(binding)) value = entry(materialIndex, static_cast<size_t>(value), value);
        material = context.materials.add(materialValue(state, value, true, true));
      }
      builder.segment(material, cornerAt(k), cornerAt(k + 1));
    }
  }
  return builder.take("");
}

ExportMesh pointSetMesh(QvPointSet& node, ShapeContext& context) {
  const TraversalState& state = context.state;
  const Points& coords = *state.coordinates;
  const long pointCount = static_cast<long>(coords.size() / 3);
  auto whole = [](double v) { return static_cast<long>(std::max(-1e15, std::min(1e15, v))); };
  long first = whole(numberIn(node.startIndex));
  long count = whole(numberIn(node.numPoints));
  if (first < 0) first = 0;
  long end = count < 0 ? pointCount : std::min(pointCount, first + count);
  const int binding = state.materialBinding;
  const bool colors = binding != kBindDefault && binding != kBindOverall;
  MeshBuilder builder(false, colors);
  const int material = context.materials.add(colors ? vertexColorMaterial(state, true, true)
                                                    : materialValue(state, 0, true, true));
  for (long i = first; i < end; ++i) {
    Corner corner;
    corner.position = toFloat(pointAt(coords, static_cast<int>(i)));
    if (colors) corner.color = vertexColor(state, static_cast<int>(i));
    builder.point(material, corner);
  }
  return builder.take("");
}

}  // namespace lumeric
