// The scene an export writes: what a VRML 1.0 viewer shows, with the
// traversal state already applied.  The scene traversal builds it from the
// plain node tree; each format's writer only reads it.
//
// Coordinates are metres with Y up, as in VRML 1.0 and glTF.  A node's
// matrix places its mesh, camera or light in the world; matrices are
// column-major (element [col * 4 + row]), as glTF stores them.  Triangles
// are wound counter-clockwise seen from their front; a node whose matrix has
// a negative determinant is a mirror, and a writer that bakes world
// coordinates reverses the winding of its triangles.
#ifndef LUMERIC_EXPORT_EXPORTSCENE_H
#define LUMERIC_EXPORT_EXPORTSCENE_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lumeric {

using Matrix4 = std::array<double, 16>;

Matrix4 identityMatrix();
// a * b: b is applied first.
Matrix4 multiply(const Matrix4& a, const Matrix4& b);
double determinant3(const Matrix4& m);

struct ExportTexture {
  std::string name;
  // The encoded image, PNG or JPEG, and its MIME type ("image/png",
  // "image/jpeg").
  std::vector<unsigned char> bytes;
  std::string mimeType;
  bool repeatS = true;
  bool repeatT = true;
};

// A VRML 1.0 material value as it applies to one primitive.
struct ExportMaterial {
  std::string name;
  std::array<float, 3> diffuse{{0.8f, 0.8f, 0.8f}};
  std::array<float, 3> ambient{{0.2f, 0.2f, 0.2f}};
  std::array<float, 3> specular{{0.0f, 0.0f, 0.0f}};
  std::array<float, 3> emissive{{0.0f, 0.0f, 0.0f}};
  float shininess = 0.2f;
  float transparency = 0.0f;
  // Index into ExportScene::textures, or -1.
  int texture = -1;
  // The texture transformation (Texture2Transform) as a 3x3 column-major
  // matrix applied to (s, t, 1).  The traversal leaves it the identity: it
  // applies Texture2Transform to the primitives' texCoords itself.
  std::array<float, 9> textureTransform{{1, 0, 0, 0, 1, 0, 0, 0, 1}};
  // Faces not known to be solid are seen from both sides.
  bool doubleSided = true;
  // Lines and points are not lit: their colour is the emissive one, or the
  // diffuse one where a viewer shows that.
  bool unlit = false;

  bool operator==(const ExportMaterial& other) const;
};

enum class PrimitiveMode { kTriangles, kLines, kPoints };

struct ExportPrimitive {
  PrimitiveMode mode = PrimitiveMode::kTriangles;
  // Index into ExportScene::materials.
  int material = -1;
  std::vector<float> positions;  // x, y, z per vertex
  std::vector<float> normals;    // x, y, z per vertex; empty for lines and points
  std::vector<float> texCoords;  // s, t per vertex, or empty
  // r, g, b, a per vertex, or empty: the material's colour.  Vertex colours
  // replace the diffuse colour and transparency; the traversal gives such a
  // primitive a material whose diffuse colour is white and transparency 0,
  // so that a writer may also multiply them.
  std::vector<float> colors;
  // Three per triangle, two per segment, one per point.
  std::vector<uint32_t> indices;

  size_t vertexCount() const { return positions.size() / 3; }
};

struct ExportMesh {
  std::string name;
  std::vector<ExportPrimitive> primitives;
};

struct ExportCamera {
  std::string name;
  bool perspective = true;
  float heightAngle = 0.785398f;  // perspective: vertical field of view, radians
  float height = 2.0f;            // orthographic: height of the view volume
  float aspectRatio = 1.0f;
  float nearDistance = 0.1f;
  float farDistance = 1000.0f;
};

enum class LightType { kDirectional, kPoint, kSpot };

// Lights shine along -Z of their node, as glTF's punctual lights do.
struct ExportLight {
  std::string name;
  LightType type = LightType::kDirectional;
  bool on = true;
  std::array<float, 3> color{{1, 1, 1}};
  float intensity = 1.0f;
  float dropOffRate = 0.0f;       // spot
  float cutOffAngle = 0.785398f;  // spot: half angle, radians
};

// One placed thing: a mesh, a camera or a light.  Nodes that place the same
// mesh share it (a DEF'd subtree USEd again is one mesh, several nodes).
struct ExportNode {
  std::string name;
  Matrix4 matrix = identityMatrix();
  int mesh = -1;
  int camera = -1;
  int light = -1;
};

struct ExportScene {
  std::vector<ExportNode> nodes;  // in document order; all are roots
  std::vector<ExportMesh> meshes;
  std::vector<ExportMaterial> materials;
  std::vector<ExportTexture> textures;
  std::vector<ExportCamera> cameras;
  std::vector<ExportLight> lights;
  // The files the export read besides the translation's own (inlined
  // scenes, texture images), as opened, in the order read.
  std::vector<std::string> filesRead;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_EXPORTSCENE_H
