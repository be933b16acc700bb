// What a VRML 1.0 traversal carries from node to node in document order:
// the transformation, the material and its binding, the coordinates,
// normals and texture coordinates, the shape hints, the texture and the
// complexity.  Separator copies it whole; the values a property node sets
// are shared between copies (each property node's values are made once).
#ifndef LUMERIC_EXPORT_TRAVERSALSTATE_H
#define LUMERIC_EXPORT_TRAVERSALSTATE_H

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "export/ExportScene.h"

namespace lumeric {

// The eight bindings of MaterialBinding and NormalBinding, by their values.
enum Binding {
  kBindDefault = 0,
  kBindOverall = 1,
  kBindPerPart = 2,
  kBindPerPartIndexed = 3,
  kBindPerFace = 4,
  kBindPerFaceIndexed = 5,
  kBindPerVertex = 6,
  kBindPerVertexIndexed = 7,
};

// ShapeHints' values.
enum VertexOrdering { kUnknownOrdering = 0, kClockwise = 1, kCounterClockwise = 2 };
enum ShapeType { kUnknownShapeType = 0, kSolid = 1 };
enum FaceType { kUnknownFaceType = 0, kConvex = 1 };

using Color3 = std::array<float, 3>;

// The values of one Material node; each list may be shorter than the
// others.
struct MaterialValues {
  std::string name;
  std::vector<Color3> ambient{Color3{{0.2f, 0.2f, 0.2f}}};
  std::vector<Color3> diffuse{Color3{{0.8f, 0.8f, 0.8f}}};
  std::vector<Color3> specular{Color3{{0, 0, 0}}};
  std::vector<Color3> emissive{Color3{{0, 0, 0}}};
  std::vector<float> shininess{0.2f};
  std::vector<float> transparency{0.0f};

  // How many materials the node holds: its longest list.
  int count() const;
};

using Points = std::vector<float>;  // 3 (or 2) numbers per point

struct TraversalState {
  Matrix4 matrix = identityMatrix();

  std::shared_ptr<const MaterialValues> material = std::make_shared<MaterialValues>();
  int materialBinding = kBindDefault;
  int normalBinding = kBindDefault;

  std::shared_ptr<const Points> coordinates = std::make_shared<Points>(Points{0, 0, 0});
  std::shared_ptr<const Points> normals = std::make_shared<Points>(Points{0, 0, 1});
  std::shared_ptr<const Points> textureCoordinates = std::make_shared<Points>(Points{0, 0});
  // Whether Normal and TextureCoordinate2 nodes have been met: without them
  // normals are generated and texture coordinates follow the default rule.
  bool normalsGiven = false;
  bool textureCoordinatesGiven = false;

  int vertexOrdering = kUnknownOrdering;
  int shapeType = kUnknownShapeType;
  int faceType = kConvex;
  float creaseAngle = 0.5f;

  // Index into ExportScene::textures, or -1.
  int texture = -1;
  // Texture2Transform's matrix (column-major 3x3, applied to (s, t, 1)).
  std::array<float, 9> textureTransform{{1, 0, 0, 0, 1, 0, 0, 0, 1}};

  float complexity = 0.5f;
  // The choice of the last Switch met, which a Switch whose whichChild is
  // -2 (inherit) takes over.
  double switchChoice = -1;
  // The DEF name of the innermost named group, for the nodes it places.
  std::string groupName;

  // A text that is equal for two states exactly when a shape under them
  // gives the same mesh (everything but the matrix and the names).
  std::string shapeKey() const;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_TRAVERSALSTATE_H
