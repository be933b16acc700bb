// The glTF writer, read back with tinygltf's loader and checked by the
// Khronos validator where it is installed.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/TinyGltf.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

// Keeps an image's encoded bytes as they are.
bool keepImageBytes(tinygltf::Image* image, const int, std::string*, std::string*, int, int,
                    const unsigned char* bytes, int size, void*) {
  image->image.assign(bytes, bytes + size);
  return true;
}

struct Written {
  ExportedFiles files;
  std::string messages;
  tinygltf::Model model;
  bool loaded = false;
  std::string loadErrors;
};

Written writeAndLoad(const ExportScene& scene, bool binary) {
  Written written;
  RecordingView view;
  {
    ExportMessages messages(&view);
    const bool ok = binary ? writeGlb(scene, "scene.glb", written.files, messages)
                           : writeGltf(scene, "scene.gltf", written.files, messages);
    if (!ok) return written;
  }
  written.messages = view.transcript();
  tinygltf::TinyGLTF loader;
  loader.SetImageLoader(keepImageBytes, nullptr);
  std::string warnings;
  const std::string& bytes = written.files.at(0).bytes;
  written.loaded =
      binary ? loader.LoadBinaryFromMemory(&written.model, &written.loadErrors, &warnings,
                                           reinterpret_cast<const unsigned char*>(bytes.data()),
                                           static_cast<unsigned>(bytes.size()))
             : loader.LoadASCIIFromString(&written.model, &written.loadErrors, &warnings, bytes.data(),
                                          static_cast<unsigned>(bytes.size()), "");
  return written;
}

// The float values of an accessor (VEC2, VEC3, VEC4), or the indices of a
// scalar one.
std::vector<double> accessorValues(const tinygltf::Model& model, int index) {
  const tinygltf::Accessor& accessor = model.accessors.at(index);
  const tinygltf::BufferView& view = model.bufferViews.at(accessor.bufferView);
  const unsigned char* start = model.buffers.at(view.buffer).data.data() + view.byteOffset + accessor.byteOffset;
  const int components = tinygltf::GetNumComponentsInType(accessor.type);
  std::vector<double> values;
  for (size_t i = 0; i < accessor.count * components; ++i) {
    if (accessor.componentType == TINYGLTF_COMPONENT_TYPE_FLOAT) {
      float v;
      std::memcpy(&v, start + i * 4, 4);
      values.push_back(v);
    } else if (accessor.componentType == TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT) {
      uint16_t v;
      std::memcpy(&v, start + i * 2, 2);
      values.push_back(v);
    } else {
      uint32_t v;
      std::memcpy(&v, start + i * 4, 4);
      values.push_back(v);
    }
  }
  return values;
}

// The triangles of a primitive placed by its node's matrix.
std::vector<Triangle> worldTriangles(const tinygltf::Model& model, const tinygltf::Node& node) {
  Matrix4 m = identityMatrix();
  if (!node.matrix.empty()) std::copy(node.matrix.begin(), node.matrix.end(), m.begin());
  std::vector<Triangle> triangles;
  for (const tinygltf::Primitive& primitive : model.meshes.at(node.mesh).primitives) {
    const std::vector<double> p = accessorValues(model, primitive.attributes.at("POSITION"));
    const std::vector<double> indices = accessorValues(model, primitive.indices);
    for (size_t t = 0; t + 2 < indices.size(); t += 3) {
      Triangle triangle;
      for (int c = 0; c < 3; ++c) {
        const double* v = &p[static_cast<size_t>(indices[t + c]) * 3];
        for (int row = 0; row < 3; ++row) {
          triangle[c][row] = m[row] * v[0] + m[4 + row] * v[1] + m[8 + row] * v[2] + m[12 + row];
        }
      }
      triangles.push_back(triangle);
    }
  }
  return triangles;
}

bool mirrored(const tinygltf::Node& node) {
  if (node.matrix.empty()) return false;
  Matrix4 m;
  std::copy(node.matrix.begin(), node.matrix.end(), m.begin());
  return determinant3(m) < 0;
}

class GltfBothTest : public ::testing::TestWithParam<bool> {};

TEST_P(GltfBothTest, SharedMeshIsWrittenOnceAndPlacedByEachNode) {
  const Matrix4 moved = translation(3, 0, 0);
  const Matrix4 mirror = multiply(translation(-4, 0, 0), scaling(-1, 1, 1));
  Written written = writeAndLoad(cubesScene({identityMatrix(), moved, mirror}), GetParam());
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Model& model = written.model;
  EXPECT_EQ(model.asset.generator.compare(0, 8, "lumeric "), 0);
  ASSERT_EQ(written.files.size(), 1u) << "a .gltf embeds its data";
  ASSERT_EQ(model.meshes.size(), 1u);
  ASSERT_EQ(model.nodes.size(), 3u);
  ASSERT_EQ(model.scenes.size(), 1u);
  EXPECT_EQ(model.scenes[0].nodes, (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(model.nodes[1].name, "Cube2");
  for (const tinygltf::Node& node : model.nodes) EXPECT_EQ(node.mesh, 0);
  EXPECT_TRUE(model.nodes[0].matrix.empty()) << "the identity is not written";
  EXPECT_TRUE(model.nodes[1].matrix.empty()) << "a move alone is a translation";
  EXPECT_EQ(model.nodes[1].translation, (std::vector<double>{3, 0, 0}));
  EXPECT_EQ(model.nodes[2].matrix, std::vector<double>(mirror.begin(), mirror.end()));
  const tinygltf::Primitive& primitive = model.meshes[0].primitives.at(0);
  EXPECT_EQ(primitive.mode, TINYGLTF_MODE_TRIANGLES);
  const tinygltf::Accessor& position = model.accessors.at(primitive.attributes.at("POSITION"));
  EXPECT_EQ(position.minValues, (std::vector<double>{-1, -1, -1}));
  EXPECT_EQ(position.maxValues, (std::vector<double>{1, 1, 1}));
  EXPECT_EQ(model.accessors.at(primitive.indices).componentType, TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT);
  EXPECT_EQ(primitive.attributes.count("NORMAL"), 1u);
  EXPECT_EQ(primitive.attributes.count("TEXCOORD_0"), 1u);
  // glTF winds mirrored nodes the other way itself: the mesh stays as is.
  EXPECT_NEAR(signedVolume(worldTriangles(model, model.nodes[2])), -8, 1e-9);
  EXPECT_TRUE(mirrored(model.nodes[2]));
}

TEST_P(GltfBothTest, EmptySceneLoads) {
  Written written = writeAndLoad(ExportScene(), GetParam());
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  EXPECT_TRUE(written.model.buffers.empty());
  EXPECT_TRUE(written.model.nodes.empty());
  EXPECT_TRUE(written.model.scenes.empty()) << "a scene must list a node";
  EXPECT_EQ(written.model.asset.version, "2.0");
}

INSTANTIATE_TEST_SUITE_P(Formats, GltfBothTest, ::testing::Values(true, false),
                         [](const ::testing::TestParamInfo<bool>& tested) { return tested.param ? "Glb" : "Gltf"; });

TEST(GltfWriterTest, MatrixWithShearIsBakedIntoItsOwnMesh) {
  Matrix4 shear = identityMatrix();
  shear[4] = 0.5;  // x += 0.5 y
  // A sheared mirror: baked, and wound the other way so that it stays outside.
  const Matrix4 shearedMirror = multiply(shear, scaling(1, 1, -2));
  Written written = writeAndLoad(cubesScene({identityMatrix(), shear, shearedMirror}), true);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Model& model = written.model;
  ASSERT_EQ(model.meshes.size(), 3u);
  ASSERT_EQ(model.nodes.size(), 3u);
  EXPECT_TRUE(model.nodes[1].matrix.empty());
  EXPECT_TRUE(model.nodes[2].matrix.empty());
  EXPECT_NEAR(signedVolume(worldTriangles(model, model.nodes[1])), 8, 1e-5);
  EXPECT_NEAR(signedVolume(worldTriangles(model, model.nodes[2])), 16, 1e-5);
  const tinygltf::Accessor& position =
      model.accessors.at(model.meshes[1].primitives[0].attributes.at("POSITION"));
  EXPECT_EQ(position.minValues, (std::vector<double>{-1.5, -1, -1}));
  EXPECT_EQ(position.maxValues, (std::vector<double>{1.5, 1, 1}));
}

TEST(GltfWriterTest, MaterialsFollowTheMetallicRoughnessRule) {
  ExportScene scene = cubesScene({identityMatrix()});
  ExportMaterial& glass = scene.materials[0];
  glass.name = "Glass";
  glass.diffuse = {{0.25f, 0.5f, 0.75f}};
  glass.emissive = {{0.1f, 0.2f, 0.3f}};
  glass.ambient = {{0.3f, 0.3f, 0.3f}};
  glass.specular = {{0.9f, 0.8f, 0.7f}};
  glass.shininess = 0.25f;
  glass.transparency = 0.75f;
  glass.doubleSided = true;
  ExportMaterial line;
  line.name = "Line";
  line.diffuse = {{0.5f, 0.5f, 0.5f}};
  line.emissive = {{1, 0, 0}};
  line.unlit = true;
  scene.materials.push_back(line);
  scene.meshes[0].primitives.push_back(linePrimitive(1));
  ExportPrimitive coloured = pointPrimitive(-1);  // no material: VRML's default
  scene.meshes[0].primitives.push_back(coloured);

  Written written = writeAndLoad(scene, true);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Model& model = written.model;
  const std::vector<tinygltf::Primitive>& primitives = model.meshes.at(0).primitives;
  ASSERT_EQ(primitives.size(), 3u);
  EXPECT_EQ(primitives[1].mode, TINYGLTF_MODE_LINE);
  EXPECT_EQ(primitives[2].mode, TINYGLTF_MODE_POINTS);

  const tinygltf::Material& first = model.materials.at(primitives[0].material);
  EXPECT_EQ(first.name, "Glass");
  const std::vector<double> base = first.pbrMetallicRoughness.baseColorFactor;
  ASSERT_EQ(base.size(), 4u);
  EXPECT_NEAR(base[0], 0.25, 1e-6);
  EXPECT_NEAR(base[2], 0.75, 1e-6);
  EXPECT_NEAR(base[3], 0.25, 1e-6);
  EXPECT_EQ(first.alphaMode, "BLEND");
  EXPECT_EQ(first.pbrMetallicRoughness.metallicFactor, 0);
  EXPECT_NEAR(first.pbrMetallicRoughness.roughnessFactor, 0.75, 1e-6);
  EXPECT_NEAR(first.emissiveFactor.at(2), 0.3, 1e-6);
  EXPECT_TRUE(first.doubleSided);
  ASSERT_TRUE(first.extras.Has("specularColor"));
  EXPECT_NEAR(first.extras.Get("specularColor").Get(0).GetNumberAsDouble(), 0.9, 1e-6);
  EXPECT_NEAR(first.extras.Get("ambientColor").Get(1).GetNumberAsDouble(), 0.3, 1e-6);

  const tinygltf::Material& unlit = model.materials.at(primitives[1].material);
  EXPECT_EQ(unlit.extensions.count("KHR_materials_unlit"), 1u);
  EXPECT_EQ(unlit.pbrMetallicRoughness.baseColorFactor, (std::vector<double>{1, 0, 0, 1})) << "emissive wins";
  EXPECT_EQ(unlit.alphaMode, "OPAQUE");
  EXPECT_NE(std::find(model.extensionsUsed.begin(), model.extensionsUsed.end(), "KHR_materials_unlit"),
            model.extensionsUsed.end());

  // Vertex colours carry the colour: the material's base is white, and VRML's
  // default material (diffuse 0.8) stands in for a missing one.
  const tinygltf::Material& byVertex = model.materials.at(primitives[2].material);
  EXPECT_EQ(byVertex.pbrMetallicRoughness.baseColorFactor, (std::vector<double>{1, 1, 1, 1}));
  EXPECT_NEAR(byVertex.pbrMetallicRoughness.roughnessFactor, 0.8, 1e-6);
  const std::vector<double> colors = accessorValues(model, primitives[2].attributes.at("COLOR_0"));
  EXPECT_EQ(colors.size(), 16u);
  EXPECT_EQ(colors[5], 1);
}

// A texture transform given on VRML's (s, t) and where the texture lands.
struct TextureCase {
  const char* name;
  std::array<float, 9> matrix;  // column-major, on (s, t, 1)
  bool extension;               // expressible as KHR_texture_transform
};

class GltfTextureTransformTest : public ::testing::TestWithParam<TextureCase> {};

TEST_P(GltfTextureTransformTest, TexelsLandWhereVrmlPutsThem) {
  const TextureCase& test = GetParam();
  ExportScene scene = cubesScene({identityMatrix()});
  ExportTexture texture;
  texture.name = "checker";
  texture.bytes = {0x89, 'P', 'N', 'G', 1, 2, 3};
  texture.mimeType = "image/png";
  texture.repeatS = false;
  scene.textures.push_back(texture);
  scene.materials[0].texture = 0;
  scene.materials[0].textureTransform = test.matrix;
  Written written = writeAndLoad(scene, true);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Model& model = written.model;
  ASSERT_EQ(model.images.size(), 1u);
  EXPECT_EQ(model.images[0].mimeType, "image/png");
  EXPECT_EQ(model.images[0].image, texture.bytes);
  ASSERT_EQ(model.samplers.size(), 1u);
  EXPECT_EQ(model.samplers[0].wrapS, TINYGLTF_TEXTURE_WRAP_CLAMP_TO_EDGE);
  EXPECT_EQ(model.samplers[0].wrapT, TINYGLTF_TEXTURE_WRAP_REPEAT);

  const tinygltf::Primitive& primitive = model.meshes[0].primitives[0];
  const tinygltf::TextureInfo& info = model.materials.at(primitive.material).pbrMetallicRoughness.baseColorTexture;
  EXPECT_EQ(info.index, 0);
  const auto extension = info.extensions.find("KHR_texture_transform");
  EXPECT_EQ(extension != info.extensions.end(), test.extension);
  double offset[2] = {0, 0}, rotation = 0, scale[2] = {1, 1};
  if (extension != info.extensions.end()) {
    const tinygltf::Value& t = extension->second;
    for (int i = 0; i < 2; ++i) {
      offset[i] = t.Get("offset").Get(i).GetNumberAsDouble();
      scale[i] = t.Get("scale").Get(i).GetNumberAsDouble();
    }
    rotation = t.Get("rotation").GetNumberAsDouble();
  }
  // Every corner: glTF's transform of the stored (u, v) must be VRML's
  // transform of (s, t), seen in glTF's (u, v) = (s, 1 - t).
  const std::vector<double> uv = accessorValues(model, primitive.attributes.at("TEXCOORD_0"));
  const std::vector<float>& st = scene.meshes[0].primitives[0].texCoords;
  const std::array<float, 9>& m = test.matrix;
  for (size_t v = 0; v < st.size() / 2; ++v) {
    const double s = st[v * 2], t = st[v * 2 + 1];
    const double expectedU = m[0] * s + m[3] * t + m[6];
    const double expectedV = 1 - (m[1] * s + m[4] * t + m[7]);
    const double x = uv[v * 2] * scale[0], y = uv[v * 2 + 1] * scale[1];
    const double u = std::cos(rotation) * x + std::sin(rotation) * y + offset[0];
    const double w = -std::sin(rotation) * x + std::cos(rotation) * y + offset[1];
    EXPECT_NEAR(u, expectedU, 1e-5) << "vertex " << v;
    EXPECT_NEAR(w, expectedV, 1e-5) << "vertex " << v;
  }
}

// rotate(0.5) then scale (2, 3) then move (0.25, -1): R * S, column-major.
const float kC = std::cos(0.5f), kS = std::sin(0.5f);
INSTANTIATE_TEST_SUITE_P(
    Transforms, GltfTextureTransformTest,
    ::testing::Values(TextureCase{"Identity", {{1, 0, 0, 0, 1, 0, 0, 0, 1}}, false},
                      TextureCase{"Moved", {{1, 0, 0, 0, 1, 0, 0.25f, -1, 1}}, true},
                      TextureCase{"Scaled", {{2, 0, 0, 0, 3, 0, 0, 0, 1}}, true},
                      TextureCase{"RotatedScaledMoved", {{2 * kC, 2 * kS, 0, -3 * kS, 3 * kC, 0, 0.25f, -1, 1}}, true},
                      TextureCase{"Mirrored", {{-1, 0, 0, 0, 1, 0, 0, 0, 1}}, true},
                      TextureCase{"Sheared", {{1, 0, 0, 0.5f, 1, 0, 0, 0, 1}}, false}),
    [](const ::testing::TestParamInfo<TextureCase>& tested) { return tested.param.name; });

TEST(GltfWriterTest, CamerasAndLightsArePlacedWithoutScale) {
  ExportScene scene;
  ExportCamera perspective;
  perspective.name = "View";
  perspective.heightAngle = 0.5f;
  perspective.aspectRatio = 1.5f;
  perspective.nearDistance = 0.5f;
  perspective.farDistance = 50;
  ExportCamera orthographic;
  orthographic.perspective = false;
  orthographic.height = 4;
  orthographic.aspectRatio = 2;
  scene.cameras = {perspective, orthographic};
  ExportLight spot;
  spot.type = LightType::kSpot;
  spot.color = {{1, 0.5f, 0}};
  spot.intensity = 0.75f;
  spot.cutOffAngle = 0.6f;
  spot.dropOffRate = 0.5f;
  ExportLight off;
  off.type = LightType::kPoint;
  off.on = false;
  scene.lights = {spot, off};
  ExportNode node;
  node.name = "View";
  node.camera = 0;
  node.matrix = multiply(translation(1, 2, 3), scaling(2, 2, 2));
  scene.nodes.push_back(node);
  node = ExportNode();
  node.camera = 1;
  scene.nodes.push_back(node);
  node = ExportNode();
  node.light = 0;
  node.matrix = multiply(translation(0, 5, 0), rotationZ(0.5));
  scene.nodes.push_back(node);
  node = ExportNode();
  node.light = 1;
  scene.nodes.push_back(node);

  Written written = writeAndLoad(scene, false);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Model& model = written.model;
  ASSERT_EQ(model.cameras.size(), 2u);
  EXPECT_EQ(model.cameras[0].type, "perspective");
  EXPECT_NEAR(model.cameras[0].perspective.yfov, 0.5, 1e-6);
  EXPECT_NEAR(model.cameras[0].perspective.aspectRatio, 1.5, 1e-6);
  EXPECT_NEAR(model.cameras[0].perspective.znear, 0.5, 1e-6);
  EXPECT_NEAR(model.cameras[0].perspective.zfar, 50, 1e-6);
  EXPECT_EQ(model.cameras[1].type, "orthographic");
  EXPECT_NEAR(model.cameras[1].orthographic.ymag, 2, 1e-6);
  EXPECT_NEAR(model.cameras[1].orthographic.xmag, 4, 1e-6);
  ASSERT_EQ(model.lights.size(), 2u);
  EXPECT_EQ(model.lights[0].type, "spot");
  EXPECT_NEAR(model.lights[0].spot.outerConeAngle, 0.6, 1e-6);
  EXPECT_NEAR(model.lights[0].spot.innerConeAngle, 0.3, 1e-6);
  EXPECT_NEAR(model.lights[0].intensity, 0.75, 1e-6);
  EXPECT_EQ(model.lights[1].intensity, 0) << "a light that is off";
  ASSERT_EQ(model.nodes.size(), 4u);
  // The scaled camera keeps its place but not its scale.
  EXPECT_TRUE(model.nodes[0].matrix.empty());
  EXPECT_EQ(model.nodes[0].translation, (std::vector<double>{1, 2, 3}));
  EXPECT_TRUE(model.nodes[0].scale.empty());
  EXPECT_EQ(model.nodes[0].camera, 0);
  EXPECT_EQ(model.nodes[1].camera, 1);
  EXPECT_FALSE(model.nodes[2].matrix.empty()) << "a rigid placement keeps its matrix";
  EXPECT_EQ(model.nodes[2].extensions.at("KHR_lights_punctual").Get("light").GetNumberAsInt(), 0);
}

TEST(GltfWriterTest, ManyVerticesTakeIntIndices) {
  ExportScene scene;
  ExportPrimitive points;
  points.mode = PrimitiveMode::kPoints;
  for (uint32_t i = 0; i < 70000; ++i) {
    points.positions.insert(points.positions.end(), {float(i % 300), float(i / 300), 0});
    points.indices.push_back(i);
  }
  scene.meshes.push_back(ExportMesh{"Points", {points}});
  ExportNode node;
  node.mesh = 0;
  scene.nodes.push_back(node);
  Written written = writeAndLoad(scene, true);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  const tinygltf::Accessor& indices = written.model.accessors.at(written.model.meshes[0].primitives[0].indices);
  EXPECT_EQ(indices.componentType, TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT);
  EXPECT_EQ(accessorValues(written.model, written.model.meshes[0].primitives[0].indices).back(), 69999);
}

TEST(GltfWriterTest, MalformedPrimitivesAreLeftOutAndCounted) {
  ExportScene scene = cubesScene({identityMatrix()});
  ExportPrimitive bad = cubePrimitive(0);
  bad.indices.back() = 999;
  scene.meshes[0].primitives.push_back(bad);
  bad.indices.pop_back();
  scene.meshes[0].primitives.push_back(bad);
  scene.meshes.push_back(ExportMesh{"Nothing", {bad}});
  ExportNode node;
  node.mesh = 1;
  scene.nodes.push_back(node);
  Written written = writeAndLoad(scene, true);
  ASSERT_TRUE(written.loaded) << written.loadErrors;
  EXPECT_EQ(written.messages, "Warning: Malformed primitive left out (3 times)\n");
  ASSERT_EQ(written.model.meshes.size(), 1u);
  EXPECT_EQ(written.model.meshes[0].primitives.size(), 1u);
  EXPECT_EQ(written.model.nodes.size(), 1u) << "a node whose mesh is empty is left out";
}

// Everything the writer can write, for the validator.
ExportScene fullScene() {
  ExportScene scene = cubesScene({identityMatrix(), translation(3, 0, 0), scaling(-1, 1, 1)});
  Matrix4 shear = identityMatrix();
  shear[4] = 0.5;
  ExportNode node;
  node.name = "Sheared";
  node.mesh = 0;
  node.matrix = shear;
  scene.nodes.push_back(node);
  scene.meshes[0].primitives.push_back(linePrimitive(1));
  scene.meshes[0].primitives.push_back(pointPrimitive(-1));
  ExportMaterial line;
  line.unlit = true;
  line.transparency = 0.5f;
  line.texture = 0;
  line.textureTransform = {{1, 0, 0, 0.5f, 1, 0, 0, 0, 1}};
  scene.materials.push_back(line);
  scene.materials[0].texture = 0;
  scene.materials[0].textureTransform = {{0, 1, 0, -1, 0, 0, 1, 0, 1}};
  // The smallest PNG: one white pixel.
  static const unsigned char kPng[] = {
      0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52, 0x00, 0x00,
      0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00, 0x00, 0x90, 0x77, 0x53, 0xde, 0x00, 0x00, 0x00,
      0x0c, 0x49, 0x44, 0x41, 0x54, 0x08, 0xd7, 0x63, 0xf8, 0xff, 0xff, 0x3f, 0x00, 0x05, 0xfe, 0x02, 0xfe, 0xdc,
      0xcc, 0x59, 0xe7, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
  ExportTexture texture;
  texture.name = "white";
  texture.bytes.assign(kPng, kPng + sizeof kPng);
  texture.mimeType = "image/png";
  scene.textures.push_back(texture);
  ExportCamera camera;
  camera.farDistance = 0;  // none given: infinite
  scene.cameras.push_back(camera);
  ExportLight light;
  light.type = LightType::kSpot;
  scene.lights.push_back(light);
  node = ExportNode();
  node.name = "Eye & <light>";
  node.camera = 0;
  node.light = 0;
  node.matrix = multiply(translation(0, 0, 10), scaling(3, 1, 1));
  scene.nodes.push_back(node);
  return scene;
}

class GltfValidatorTest : public ::testing::TestWithParam<bool> {};

TEST_P(GltfValidatorTest, FindsNoError) {
  const std::string modules = gltfValidatorModules();
  if (modules.empty()) GTEST_SKIP() << "the glTF validator is not installed (npm install in the source tree)";
  ScratchDir dir;
  for (const ExportScene& scene : {ExportScene(), fullScene()}) {
    RecordingView view;
    ExportMessages messages(&view);
    ExportedFiles files;
    const std::string name = GetParam() ? "scene.glb" : "scene.gltf";
    ASSERT_TRUE(GetParam() ? writeGlb(scene, name, files, messages) : writeGltf(scene, name, files, messages));
    const std::string path = dir.write(name, files[0].bytes);
    std::string report;
    ASSERT_EQ(runCommand("NODE_PATH='" + modules + "' node '" + LUMERIC_TEST_DIR +
                             "/export/formats/validate_gltf.cjs' '" + path + "'",
                         report),
              0)
        << report;
    EXPECT_EQ(report.compare(0, 9, "errors 0 "), 0) << report;
    EXPECT_NE(report.find("warnings 0\n"), std::string::npos) << report;
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, GltfValidatorTest, ::testing::Values(true, false),
                         [](const ::testing::TestParamInfo<bool>& tested) { return tested.param ? "Glb" : "Gltf"; });

}  // namespace
}  // namespace lumeric
