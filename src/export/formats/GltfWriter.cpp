// glTF 2.0, binary (.glb) and JSON (.gltf), through tinygltf.
//
// Layout: one buffer; a .glb carries it in its binary chunk, a .gltf
// embeds it as a base64 data: URI, so that either is one self-contained
// file (textures included, as buffer views).  One glTF node per ExportNode,
// all roots of the one scene, with the node's matrix (none when it is the
// identity); a mesh placed by several nodes is written once.  A matrix
// that glTF cannot hold (shear, projection) is baked: that node gets its own
// copy of the mesh in world coordinates.
//
// Materials (metallic-roughness): baseColor = diffuse (white under vertex
// colours, which carry the diffuse colour), alpha = 1 - transparency with
// alphaMode BLEND when below 1, emissiveFactor = emissive, metallic 0,
// roughness = 1 - shininess; ambient and specular go to the material's
// extras.  Unlit materials (lines, points) use KHR_materials_unlit with
// baseColor = emissive, or diffuse when emissive is black.  A texture
// transform becomes KHR_texture_transform, or is baked into the texture
// coordinates when it shears.
#include <cmath>
#include <map>
#include <ostream>
#include <streambuf>
#include <tuple>

#include "export/formats/ExportText.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/MatrixParts.h"
#include "export/formats/TinyGltf.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {

namespace {

constexpr double kPi = 3.14159265358979323846;

// Into [0, 1]; not a number becomes 0.
double clamp01(double v) { return v > 0 ? (v < 1 ? v : 1) : 0; }

// `v` when it is a finite number above `low`, else `fallback`: JSON has no
// infinity and no NaN.
double finiteAbove(double v, double low, double fallback) { return std::isfinite(v) && v > low ? v : fallback; }

tinygltf::Value numberArray(const std::array<float, 3>& values) {
  tinygltf::Value::Array array;
  for (float v : values) array.emplace_back(std::isfinite(v) ? static_cast<double>(v) : 0.0);
  return tinygltf::Value(array);
}

// KHR_texture_transform's offset, rotation and scale for a texture
// transform given on VRML's (s, t), whose t runs up where glTF's v runs
// down.  glTF's matrix is translate(offset) * rotate(rotation) *
// scale(scale), with rotate(r) = [cos r, sin r; -sin r, cos r] (rows), on
// (u, v) = (s, 1 - t).  False when the transform shears and has no such form.
struct TextureTransformParts {
  double offset[2];
  double rotation;
  double scale[2];
};

bool gltfTextureTransform(const std::array<float, 9>& m, TextureTransformParts& parts) {
  // VRML rows [a b e; c d f]; flipped into glTF's (u, v): [a -b b+e; -c d 1-d-f].
  const double a = m[0], c = m[1], b = m[3], d = m[4], e = m[6], f = m[7];
  const double l00 = a, l01 = -b, l10 = -c, l11 = d;
  const double sx = std::sqrt(l00 * l00 + l10 * l10);
  if (!(sx > 0) || !std::isfinite(sx)) return false;
  const double cosine = l00 / sx, sine = -l10 / sx;
  const double sy = sine * l01 + cosine * l11;
  const double residual = std::fabs(l01 - sy * sine) + std::fabs(l11 - sy * cosine);
  if (!(residual <= 1e-6 * (sx + std::fabs(sy)))) return false;
  parts.offset[0] = b + e;
  parts.offset[1] = 1 - d - f;
  parts.rotation = std::atan2(sine, cosine);
  parts.scale[0] = sx;
  parts.scale[1] = sy;
  return true;
}

class GltfBuilder {
 public:
  GltfBuilder(const ExportScene& scene, ExportMessages& messages) : scene_(scene), messages_(messages) {
    meshes_.assign(scene.meshes.size(), kNotYet);
    textures_.assign(scene.textures.size(), kNotYet);
    cameras_.assign(scene.cameras.size(), kNotYet);
    lights_.assign(scene.lights.size(), kNotYet);
  }

  tinygltf::Model build() {
    model_.asset.version = "2.0";
    model_.asset.generator = generatorName();
    model_.buffers.emplace_back();
    tinygltf::Scene gltfScene;
    model_.nodes.reserve(scene_.nodes.size());
    for (const ExportNode& node : scene_.nodes) addNode(node, gltfScene.nodes);
    // A scene must list a node: an empty file has none.
    if (!gltfScene.nodes.empty()) {
      model_.scenes.push_back(gltfScene);
      model_.defaultScene = 0;
    }
    // A buffer of no bytes is invalid: an empty scene has none.
    if (data().empty()) model_.buffers.clear();
    return std::move(model_);
  }

 private:
  static constexpr int kNotYet = -2;

  // What decides a glTF material besides the scene's material.
  struct MaterialKey {
    int material;
    bool vertexColors;
    bool translucentColors;
    bool textured;  // the primitive has texture coordinates
    bool transformBaked;
    bool operator<(const MaterialKey& o) const {
      return std::tie(material, vertexColors, translucentColors, textured, transformBaked) <
             std::tie(o.material, o.vertexColors, o.translucentColors, o.textured, o.transformBaked);
    }
  };

  std::vector<unsigned char>& data() { return model_.buffers[0].data; }

  void useExtension(const std::string& name) {
    for (const std::string& used : model_.extensionsUsed) {
      if (used == name) return;
    }
    model_.extensionsUsed.push_back(name);
  }

  int addBufferView(const void* bytes, size_t size, int target) {
    std::vector<unsigned char>& buffer = data();
    while (buffer.size() % 4 != 0) buffer.push_back(0);
    tinygltf::BufferView view;
    view.buffer = 0;
    view.byteOffset = buffer.size();
    view.byteLength = size;
    view.target = target;
    const unsigned char* start = static_cast<const unsigned char*>(bytes);
    buffer.insert(buffer.end(), start, start + size);
    model_.bufferViews.push_back(view);
    return static_cast<int>(model_.bufferViews.size() - 1);
  }

  // An accessor of float vectors of `components` (2, 3 or 4) values.
  int addFloats(const std::vector<float>& values, int components, bool withBounds) {
    tinygltf::Accessor accessor;
    accessor.bufferView = addBufferView(values.data(), values.size() * sizeof(float), TINYGLTF_TARGET_ARRAY_BUFFER);
    accessor.componentType = TINYGLTF_COMPONENT_TYPE_FLOAT;
    accessor.count = values.size() / components;
    accessor.type = components == 2 ? TINYGLTF_TYPE_VEC2 : components == 3 ? TINYGLTF_TYPE_VEC3 : TINYGLTF_TYPE_VEC4;
    if (withBounds) {
      accessor.minValues.assign(components, HUGE_VAL);
      accessor.maxValues.assign(components, -HUGE_VAL);
      for (size_t i = 0; i < values.size(); ++i) {
        double& low = accessor.minValues[i % components];
        double& high = accessor.maxValues[i % components];
        low = std::fmin(low, values[i]);
        high = std::fmax(high, values[i]);
      }
    }
    model_.accessors.push_back(accessor);
    return static_cast<int>(model_.accessors.size() - 1);
  }

  // Indices as unsigned shorts when every index fits below 65535 (the
  // largest value is reserved), else as unsigned ints.
  int addIndices(const std::vector<uint32_t>& indices, size_t vertexCount) {
    tinygltf::Accessor accessor;
    if (vertexCount <= 65535) {
      std::vector<uint16_t> shorts(indices.begin(), indices.end());
      accessor.bufferView =
          addBufferView(shorts.data(), shorts.size() * sizeof(uint16_t), TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
      accessor.componentType = TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT;
    } else {
      accessor.bufferView =
          addBufferView(indices.data(), indices.size() * sizeof(uint32_t), TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
      accessor.componentType = TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
    }
    accessor.count = indices.size();
    accessor.type = TINYGLTF_TYPE_SCALAR;
    model_.accessors.push_back(accessor);
    return static_cast<int>(model_.accessors.size() - 1);
  }

  int sampler(bool repeatS, bool repeatT) {
    const std::pair<bool, bool> key(repeatS, repeatT);
    auto found = samplers_.find(key);
    if (found != samplers_.end()) return found->second;
    tinygltf::Sampler sampler;
    sampler.magFilter = TINYGLTF_TEXTURE_FILTER_LINEAR;
    sampler.minFilter = TINYGLTF_TEXTURE_FILTER_LINEAR_MIPMAP_LINEAR;
    sampler.wrapS = repeatS ? TINYGLTF_TEXTURE_WRAP_REPEAT : TINYGLTF_TEXTURE_WRAP_CLAMP_TO_EDGE;
    sampler.wrapT = repeatT ? TINYGLTF_TEXTURE_WRAP_REPEAT : TINYGLTF_TEXTURE_WRAP_CLAMP_TO_EDGE;
    model_.samplers.push_back(sampler);
    return samplers_[key] = static_cast<int>(model_.samplers.size() - 1);
  }

  // The glTF texture of scene texture `index`, or -1 when it has no image
  // glTF can carry.
  int texture(int index) {
    if (index < 0 || static_cast<size_t>(index) >= textures_.size()) return -1;
    int& done = textures_[index];
    if (done != kNotYet) return done;
    const ExportTexture& source = scene_.textures[index];
    if (source.bytes.empty() || (source.mimeType != "image/png" && source.mimeType != "image/jpeg")) {
      messages_.countWarning("Texture without a PNG or JPEG image left out of glTF");
      return done = -1;
    }
    tinygltf::Image image;
    image.name = source.name;
    image.mimeType = source.mimeType;
    image.bufferView = addBufferView(source.bytes.data(), source.bytes.size(), 0);
    model_.images.push_back(image);
    tinygltf::Texture gltfTexture;
    gltfTexture.name = source.name;
    gltfTexture.source = static_cast<int>(model_.images.size() - 1);
    gltfTexture.sampler = sampler(source.repeatS, source.repeatT);
    model_.textures.push_back(gltfTexture);
    return done = static_cast<int>(model_.textures.size() - 1);
  }

  const ExportMaterial& sceneMaterial(int index) const {
    static const ExportMaterial kDefault;
    if (index < 0 || static_cast<size_t>(index) >= scene_.materials.size()) return kDefault;
    return scene_.materials[index];
  }

  int gltfMaterial(const MaterialKey& key) {
    auto found = materials_.find(key);
    if (found != materials_.end()) return found->second;
    const ExportMaterial& source = sceneMaterial(key.material);
    tinygltf::Material gltf;
    gltf.name = source.name;
    const bool emissiveBlack = source.emissive[0] == 0 && source.emissive[1] == 0 && source.emissive[2] == 0;
    const std::array<float, 3>& color = source.unlit && !emissiveBlack ? source.emissive : source.diffuse;
    const double alpha = key.vertexColors ? 1.0 : clamp01(1.0 - source.transparency);
    tinygltf::PbrMetallicRoughness& pbr = gltf.pbrMetallicRoughness;
    pbr.baseColorFactor.assign(4, alpha);
    for (int i = 0; i < 3; ++i) pbr.baseColorFactor[i] = key.vertexColors ? 1.0 : clamp01(color[i]);
    pbr.metallicFactor = 0;
    pbr.roughnessFactor = clamp01(1.0 - source.shininess);
    if (alpha < 1 || key.translucentColors) gltf.alphaMode = "BLEND";
    gltf.doubleSided = source.doubleSided;
    if (source.unlit) {
      gltf.extensions["KHR_materials_unlit"] = tinygltf::Value(tinygltf::Value::Object());
      useExtension("KHR_materials_unlit");
    } else {
      gltf.emissiveFactor = {clamp01(source.emissive[0]), clamp01(source.emissive[1]), clamp01(source.emissive[2])};
    }
    // A texture needs texture coordinates: without them the colour alone.
    const int textureIndex = key.textured ? texture(source.texture) : -1;
    if (textureIndex >= 0) {
      pbr.baseColorTexture.index = textureIndex;
      TextureTransformParts parts;
      if (!key.transformBaked && !isIdentityTextureTransform(source.textureTransform) &&
          gltfTextureTransform(source.textureTransform, parts)) {
        tinygltf::Value::Object transform;
        transform["offset"] = tinygltf::Value(tinygltf::Value::Array{tinygltf::Value(parts.offset[0]),
                                                                     tinygltf::Value(parts.offset[1])});
        transform["rotation"] = tinygltf::Value(parts.rotation);
        transform["scale"] = tinygltf::Value(
            tinygltf::Value::Array{tinygltf::Value(parts.scale[0]), tinygltf::Value(parts.scale[1])});
        pbr.baseColorTexture.extensions["KHR_texture_transform"] = tinygltf::Value(transform);
        useExtension("KHR_texture_transform");
      }
    }
    tinygltf::Value::Object extras;
    extras["ambientColor"] = numberArray(source.ambient);
    extras["specularColor"] = numberArray(source.specular);
    gltf.extras = tinygltf::Value(extras);
    model_.materials.push_back(gltf);
    return materials_[key] = static_cast<int>(model_.materials.size() - 1);
  }

  // Adds `source` to `mesh`, placed by `placement` when it is baked.
  void addPrimitive(tinygltf::Mesh& mesh, const ExportPrimitive& source, const WorldPlacement* placement) {
    if (!primitiveIsWellFormed(source)) {
      messages_.countWarning("Malformed primitive left out");
      return;
    }
    if (source.indices.empty()) return;
    const size_t count = source.vertexCount();
    std::vector<float> placed;
    if (placement != nullptr) {
      placed.resize(source.positions.size());
      for (size_t v = 0; v < count; ++v) {
        const std::array<double, 3> p = placement->point(&source.positions[v * 3]);
        for (int i = 0; i < 3; ++i) placed[v * 3 + i] = static_cast<float>(p[i]);
      }
    }
    const std::vector<float>& positions = placement != nullptr ? placed : source.positions;
    for (float value : positions) {
      if (!std::isfinite(value)) {
        messages_.countWarning("Primitive with a coordinate that is not finite left out");
        return;
      }
    }
    tinygltf::Primitive primitive;
    primitive.mode = source.mode == PrimitiveMode::kTriangles ? TINYGLTF_MODE_TRIANGLES
                     : source.mode == PrimitiveMode::kLines   ? TINYGLTF_MODE_LINE
                                                              : TINYGLTF_MODE_POINTS;
    primitive.attributes["POSITION"] = addFloats(positions, 3, true);
    if (!source.normals.empty()) primitive.attributes["NORMAL"] = addFloats(unitNormals(source, placement), 3, false);

    const ExportMaterial& material = sceneMaterial(source.material);
    MaterialKey key{source.material, !source.colors.empty(), false, !source.texCoords.empty(), false};
    if (key.textured) {
      TextureTransformParts unused;
      key.transformBaked = !isIdentityTextureTransform(material.textureTransform) &&
                           !gltfTextureTransform(material.textureTransform, unused);
      primitive.attributes["TEXCOORD_0"] = addFloats(textureCoordinates(source, material, key.transformBaked), 2, false);
    }
    if (!source.colors.empty()) {
      std::vector<float> colors(source.colors.size());
      for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = static_cast<float>(clamp01(source.colors[i]));
        if (i % 4 == 3 && colors[i] < 1) key.translucentColors = true;
      }
      primitive.attributes["COLOR_0"] = addFloats(colors, 4, false);
    }
    if (placement != nullptr && placement->mirrored() && source.mode == PrimitiveMode::kTriangles) {
      std::vector<uint32_t> reversed(source.indices);
      for (size_t t = 0; t < reversed.size(); t += 3) std::swap(reversed[t + 1], reversed[t + 2]);
      primitive.indices = addIndices(reversed, count);
    } else {
      primitive.indices = addIndices(source.indices, count);
    }
    primitive.material = gltfMaterial(key);
    mesh.primitives.push_back(primitive);
  }

  std::vector<float> unitNormals(const ExportPrimitive& source, const WorldPlacement* placement) {
    std::vector<float> normals(source.normals.size());
    const WorldPlacement identity(identityMatrix());
    const WorldPlacement& place = placement != nullptr ? *placement : identity;
    for (size_t v = 0; v < normals.size() / 3; ++v) {
      std::array<float, 3> n = place.normal(&source.normals[v * 3]);
      // A normal of no length has no direction; glTF wants unit length.
      if (n[0] == 0 && n[1] == 0 && n[2] == 0) n[2] = 1;
      for (int i = 0; i < 3; ++i) normals[v * 3 + i] = n[i];
    }
    return normals;
  }

  // glTF's (u, v) = (s, 1 - t), after the texture transform when it is baked.
  static std::vector<float> textureCoordinates(const ExportPrimitive& source, const ExportMaterial& material,
                                               bool bake) {
    std::vector<float> uv(source.texCoords.size());
    for (size_t v = 0; v < uv.size() / 2; ++v) {
      std::array<float, 2> st{{source.texCoords[v * 2], source.texCoords[v * 2 + 1]}};
      if (bake) st = transformTexCoord(material.textureTransform, st[0], st[1]);
      uv[v * 2] = st[0];
      uv[v * 2 + 1] = 1 - st[1];
    }
    return uv;
  }

  // The glTF mesh of scene mesh `index`, placed by `placement` when baked;
  // -1 when nothing of it can be written.
  int buildMesh(int index, const WorldPlacement* placement) {
    const ExportMesh& source = scene_.meshes[index];
    tinygltf::Mesh mesh;
    mesh.name = source.name;
    for (const ExportPrimitive& primitive : source.primitives) addPrimitive(mesh, primitive, placement);
    if (mesh.primitives.empty()) return -1;
    model_.meshes.push_back(mesh);
    return static_cast<int>(model_.meshes.size() - 1);
  }

  int sharedMesh(int index) {
    int& done = meshes_[index];
    if (done == kNotYet) done = buildMesh(index, nullptr);
    return done;
  }

  int camera(int index) {
    int& done = cameras_[index];
    if (done != kNotYet) return done;
    const ExportCamera& source = scene_.cameras[index];
    tinygltf::Camera camera;
    camera.name = source.name;
    const double aspect = finiteAbove(source.aspectRatio, 0, 1.0);
    if (source.perspective) {
      camera.type = "perspective";
      const double angle = source.heightAngle;
      camera.perspective.yfov = angle > 0 && angle < kPi ? angle : kPi / 4;
      camera.perspective.aspectRatio = aspect;
      camera.perspective.znear = finiteAbove(source.nearDistance, 0, 0.001);
      // tinygltf always writes a far plane: one far off when the scene's is
      // not beyond the near one.
      camera.perspective.zfar =
          finiteAbove(source.farDistance, camera.perspective.znear, camera.perspective.znear * 1e6);
    } else {
      camera.type = "orthographic";
      const double height = finiteAbove(source.height, 0, 2.0);
      camera.orthographic.ymag = height / 2;
      camera.orthographic.xmag = height * aspect / 2;
      camera.orthographic.znear = finiteAbove(source.nearDistance, 0, 0.0);
      camera.orthographic.zfar =
          finiteAbove(source.farDistance, camera.orthographic.znear, camera.orthographic.znear + 1000);
    }
    model_.cameras.push_back(camera);
    return done = static_cast<int>(model_.cameras.size() - 1);
  }

  int light(int index) {
    int& done = lights_[index];
    if (done != kNotYet) return done;
    const ExportLight& source = scene_.lights[index];
    tinygltf::Light light;
    light.name = source.name;
    light.color = {clamp01(source.color[0]), clamp01(source.color[1]), clamp01(source.color[2])};
    light.intensity = source.on ? finiteAbove(source.intensity, 0, 0.0) : 0.0;
    light.type = source.type == LightType::kDirectional ? "directional"
                 : source.type == LightType::kPoint     ? "point"
                                                        : "spot";
    if (source.type == LightType::kSpot) {
      // The beam is full up to (1 - dropOffRate) of the cut-off angle.
      double outer = source.cutOffAngle;
      if (!(outer > 1e-4)) outer = 1e-4;
      if (outer > kPi / 2) outer = kPi / 2;
      light.spot.outerConeAngle = outer;
      light.spot.innerConeAngle = std::fmin(outer * (1 - clamp01(source.dropOffRate)), outer * 0.999);
    }
    model_.lights.push_back(light);
    return done = static_cast<int>(model_.lights.size() - 1);
  }

  // A matrix that only moves is written as a translation: 3 numbers in
  // place of 16, which counts when a LOOP places 10^5 copies of a mesh.
  static void setMatrix(tinygltf::Node& node, const Matrix4& matrix) {
    if (matrix == identityMatrix()) return;
    Matrix4 moved = identityMatrix();
    for (int k = 12; k < 15; ++k) moved[static_cast<size_t>(k)] = matrix[static_cast<size_t>(k)];
    if (matrix == moved) {
      node.translation.assign(matrix.begin() + 12, matrix.begin() + 15);
      return;
    }
    node.matrix.assign(matrix.begin(), matrix.end());
  }

  static void setRigid(tinygltf::Node& node, const Matrix4& matrix) {
    const MatrixParts parts = rigidParts(matrix);
    if (parts.translation != std::array<double, 3>{{0, 0, 0}}) {
      node.translation.assign(parts.translation.begin(), parts.translation.end());
    }
    if (parts.rotation != std::array<double, 4>{{0, 0, 0, 1}}) {
      node.rotation.assign(parts.rotation.begin(), parts.rotation.end());
    }
  }

  int pushNode(const tinygltf::Node& node) {
    model_.nodes.push_back(node);
    return static_cast<int>(model_.nodes.size() - 1);
  }

  // Gives `node` the scene node's camera and light; false when it has none.
  bool attachViewers(tinygltf::Node& node, const ExportNode& source) {
    if (source.camera >= 0 && static_cast<size_t>(source.camera) < scene_.cameras.size()) {
      node.camera = camera(source.camera);
    }
    if (source.light >= 0 && static_cast<size_t>(source.light) < scene_.lights.size()) {
      tinygltf::Value::Object reference;
      reference["light"] = tinygltf::Value(light(source.light));
      node.extensions["KHR_lights_punctual"] = tinygltf::Value(reference);
    }
    return node.camera >= 0 || !node.extensions.empty();
  }

  // Cameras and lights take no scale: where the node scales or shears,
  // they are placed by its translation and rotation only, on a node of
  // their own when the node also places a mesh.
  void addNode(const ExportNode& source, std::vector<int>& roots) {
    MatrixParts parts;
    const bool trs = decomposeMatrix(source.matrix, parts);
    bool rigid = trs && parts.scale[0] > 0;
    for (double scale : parts.scale) rigid = rigid && std::fabs(scale - 1) < 1e-6;
    tinygltf::Node node;
    node.name = source.name;
    if (source.mesh >= 0 && static_cast<size_t>(source.mesh) < scene_.meshes.size()) {
      if (trs) {
        node.mesh = sharedMesh(source.mesh);
        setMatrix(node, source.matrix);
      } else {
        const WorldPlacement placement(source.matrix);
        node.mesh = buildMesh(source.mesh, &placement);
      }
    }
    if (node.mesh >= 0 && rigid) {
      attachViewers(node, source);
      roots.push_back(pushNode(node));
      return;
    }
    if (node.mesh >= 0) roots.push_back(pushNode(node));
    tinygltf::Node viewer;
    viewer.name = source.name;
    if (!attachViewers(viewer, source)) return;
    if (rigid) {
      setMatrix(viewer, source.matrix);
    } else {
      setRigid(viewer, source.matrix);
    }
    roots.push_back(pushNode(viewer));
  }

  const ExportScene& scene_;
  ExportMessages& messages_;
  tinygltf::Model model_;
  std::vector<int> meshes_;
  std::vector<int> textures_;
  std::vector<int> cameras_;
  std::vector<int> lights_;
  std::map<MaterialKey, int> materials_;
  std::map<std::pair<bool, bool>, int> samplers_;
};

// A stream that appends to a string, so that the file is not copied once
// more when it is done.
class StringBuffer : public std::streambuf {
 public:
  explicit StringBuffer(std::string& out) : out_(out) {}

 protected:
  std::streamsize xsputn(const char* text, std::streamsize count) override {
    out_.append(text, static_cast<size_t>(count));
    return count;
  }
  int_type overflow(int_type c) override {
    if (!traits_type::eq_int_type(c, traits_type::eof())) out_ += traits_type::to_char_type(c);
    return traits_type::not_eof(c);
  }

 private:
  std::string& out_;
};

bool writeGltfFile(const ExportScene& scene, const std::string& path, bool binary, ExportedFiles& files,
                   ExportMessages& messages) {
  try {
    const tinygltf::Model model = GltfBuilder(scene, messages).build();
    std::string bytes;
    StringBuffer buffer(bytes);
    std::ostream stream(&buffer);
    tinygltf::TinyGLTF writer;
    if (!writer.WriteGltfSceneToStream(&model, stream, !binary, binary) || !stream) {
      messages.error("Could not encode " + path + " as glTF");
      return false;
    }
    files.push_back(ExportedFile{path, std::move(bytes)});
    return true;
  } catch (const std::bad_alloc&) {
    messages.error("Out of memory");
  } catch (const std::exception& failure) {
    messages.error("Could not encode " + path + " as glTF: " + failure.what());
  }
  return false;
}

}  // namespace

bool writeGlb(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  return writeGltfFile(scene, path, true, files, messages);
}

bool writeGltf(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  return writeGltfFile(scene, path, false, files, messages);
}

}  // namespace lumeric
