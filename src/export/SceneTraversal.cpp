#include "export/SceneTraversal.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "core/FileAccess.h"
#include "driver/PlainScene.h"
#include "export/FaceSets.h"
#include "export/FieldValues.h"
#include "export/Matrices.h"
#include "export/Primitives.h"
#include "export/TextureCoordinates.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvAsciiText.h"
#include "nodes/QvCone.h"
#include "nodes/QvCoordinate3.h"
#include "nodes/QvCube.h"
#include "nodes/QvCylinder.h"
#include "nodes/QvDirectionalLight.h"
#include "nodes/QvGroup.h"
#include "nodes/QvIndexedFaceSet.h"
#include "nodes/QvIndexedLineSet.h"
#include "nodes/QvLOD.h"
#include "nodes/QvMaterial.h"
#include "nodes/QvMaterialBinding.h"
#include "nodes/QvMatrixTransform.h"
#include "nodes/QvNormal.h"
#include "nodes/QvNormalBinding.h"
#include "nodes/QvOrthographicCamera.h"
#include "nodes/QvPerspectiveCamera.h"
#include "nodes/QvPointLight.h"
#include "nodes/QvPointSet.h"
#include "nodes/QvRotation.h"
#include "nodes/QvScale.h"
#include "nodes/QvSeparator.h"
#include "nodes/QvShapeHints.h"
#include "nodes/QvSphere.h"
#include "nodes/QvSpotLight.h"
#include "nodes/QvSwitch.h"
#include "nodes/QvTexture2.h"
#include "nodes/QvTexture2Transform.h"
#include "nodes/QvTextureCoordinate2.h"
#include "nodes/QvTransform.h"
#include "nodes/QvTransformSeparator.h"
#include "nodes/QvTranslation.h"
#include "nodes/QvWWWAnchor.h"
#include "nodes/QvWWWInline.h"
#include "nodes/extensions/QvUseStatement.h"
#include "reader/QvUnknownNode.h"

namespace lumeric {

namespace {

// Deeper than any scene the reader accepts: only USE chains and inlined
// files nest further.
constexpr size_t kMaxDepth = 1000;

std::string directoryOf(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

Vec3 vec3(const std::array<double, 3>& a) { return a; }

std::vector<Color3> colorsOf(std::vector<double> numbers) {
  std::vector<Color3> colors;
  for (size_t i = 0; i + 2 < numbers.size(); i += 3) {
    colors.push_back(
        {{static_cast<float>(numbers[i]), static_cast<float>(numbers[i + 1]), static_cast<float>(numbers[i + 2])}});
  }
  return colors;
}

std::vector<float> floatsOf(const std::vector<double>& numbers) { return std::vector<float>(numbers.begin(), numbers.end()); }

// Transform's matrix: T C R SR S -SR -C, the last applied first.
Matrix4 transformMatrix(QvTransform& node) {
  const auto t = componentsIn<3>(node.translation);
  const auto r = componentsIn<4>(node.rotation);
  const auto s = componentsIn<3>(node.scaleFactor);
  const auto so = componentsIn<4>(node.scaleOrientation);
  const auto c = componentsIn<3>(node.center);
  const Matrix4 orientation = rotationMatrix(Vec3{{so[0], so[1], so[2]}}, so[3]);
  const Matrix4 unorientation = rotationMatrix(Vec3{{so[0], so[1], so[2]}}, -so[3]);
  Matrix4 m = translationMatrix(vec3(t));
  m = multiply(m, translationMatrix(vec3(c)));
  m = multiply(m, rotationMatrix(Vec3{{r[0], r[1], r[2]}}, r[3]));
  m = multiply(m, orientation);
  m = multiply(m, scaleMatrix(vec3(s)));
  m = multiply(m, unorientation);
  return multiply(m, translationMatrix(Vec3{{-c[0], -c[1], -c[2]}}));
}

bool isUrl(const std::string& name) {
  return name.find("://") != std::string::npos && name.compare(0, 7, "file://") != 0;
}

}  // namespace

SceneTraversal::SceneTraversal(ExportScene& scene, ExportMessages& messages, const ExportOptions& options,
                               const std::string& fileName)
    : scene_(scene), messages_(messages), options_(options), materials_(scene), textures_(scene, messages) {
  directories_.push_back(directoryOf(fileName));
}

void SceneTraversal::traverse(QvNode* root) {
  if (root == nullptr) return;
  TraversalState state;
  visit(root, state);
}

template <class Value, class Make>
std::shared_ptr<const Value> SceneTraversal::cached(std::map<const QvNode*, std::shared_ptr<const Value>>& cache,
                                                    QvNode* node, Make make) {
  auto found = cache.find(node);
  if (found != cache.end()) return found->second;
  std::shared_ptr<const Value> value = std::make_shared<const Value>(make());
  cache.emplace(node, value);
  return value;
}

void SceneTraversal::visit(QvNode* node, TraversalState& state) {
  if (node == nullptr || budgetSpent_) return;
  if (++visits_ > options_.maxVisits) {
    budgetSpent_ = true;
    messages_.warning("The scene is too large to export whole; the rest of it is left out");
    return;
  }
  if (onPath_.size() >= kMaxDepth || onPath_.count(node) != 0) return;
  if (node->hasName()) {
    const char* name = node->getName();
    if (name != nullptr) names_[name] = node;
  }
  onPath_.insert(node);
  if (auto* use = dynamic_cast<QvUseStatement*>(node)) {
    visitUse(*use, state);
  } else if (!visitGroup(node, state) && !visitTransformation(node, state) && !visitProperty(node, state) &&
             !visitShape(node, state)) {
    visitCameraOrLight(node, state);
  }
  onPath_.erase(node);
}

void SceneTraversal::visitChildren(QvGroupNode* group, TraversalState& state) {
  for (int i = 0; i < group->getNumChildren(); ++i) visit(group->getChild(i), state);
}

bool SceneTraversal::visitGroup(QvNode* node, TraversalState& state) {
  if (!node->isGroup() || dynamic_cast<QvUnknownNode*>(node) != nullptr) return false;
  auto* group = static_cast<QvGroupNode*>(node);
  const std::string outerName = state.groupName;
  if (node->hasName() && node->getName() != nullptr) state.groupName = node->getName();
  if (dynamic_cast<QvSeparator*>(node) != nullptr) {
    TraversalState inner = state;
    visitChildren(group, inner);
  } else if (dynamic_cast<QvTransformSeparator*>(node) != nullptr) {
    const Matrix4 saved = state.matrix;
    visitChildren(group, state);
    state.matrix = saved;
  } else if (auto* choice = dynamic_cast<QvSwitch*>(node)) {
    const double which = numberIn(choice->whichChild);
    if (which == -3) {
      visitChildren(group, state);
    } else if (which >= 0 && which < group->getNumChildren()) {
      visit(group->getChild(static_cast<int>(which)), state);
    }
  } else if (dynamic_cast<QvLOD*>(node) != nullptr) {
    if (group->getNumChildren() > 0) visit(group->getChild(0), state);
  } else if (auto* inlined = dynamic_cast<QvWWWInline*>(node)) {
    visitInline(*inlined, state);
  } else {
    // Group, WWWAnchor.
    visitChildren(group, state);
  }
  state.groupName = outerName;
  return true;
}

bool SceneTraversal::visitTransformation(QvNode* node, TraversalState& state) {
  Matrix4 m;
  if (auto* t = dynamic_cast<QvTransform*>(node)) {
    m = transformMatrix(*t);
  } else if (auto* t = dynamic_cast<QvTranslation*>(node)) {
    m = translationMatrix(vec3(componentsIn<3>(t->translation)));
  } else if (auto* r = dynamic_cast<QvRotation*>(node)) {
    const auto v = componentsIn<4>(r->rotation);
    m = rotationMatrix(Vec3{{v[0], v[1], v[2]}}, v[3]);
  } else if (auto* s = dynamic_cast<QvScale*>(node)) {
    m = scaleMatrix(vec3(componentsIn<3>(s->scaleFactor)));
  } else if (auto* mt = dynamic_cast<QvMatrixTransform*>(node)) {
    const auto v = componentsIn<16>(mt->matrix);
    double numbers[16];
    for (int k = 0; k < 16; ++k) numbers[k] = v[static_cast<size_t>(k)];
    m = matrixFromRowVectorOrder(numbers);
  } else {
    return false;
  }
  state.matrix = multiply(state.matrix, m);
  return true;
}

bool SceneTraversal::visitProperty(QvNode* node, TraversalState& state) {
  if (auto* material = dynamic_cast<QvMaterial*>(node)) {
    state.material = cached(materialValues_, node, [&] {
      MaterialValues values;
      values.name = node->hasName() && node->getName() != nullptr ? node->getName() : "";
      values.ambient = colorsOf(numbersIn(material->ambientColor));
      values.diffuse = colorsOf(numbersIn(material->diffuseColor));
      values.specular = colorsOf(numbersIn(material->specularColor));
      values.emissive = colorsOf(numbersIn(material->emissiveColor));
      values.shininess = floatsOf(numbersIn(material->shininess));
      values.transparency = floatsOf(numbersIn(material->transparency));
      return values;
    });
  } else if (auto* binding = dynamic_cast<QvMaterialBinding*>(node)) {
    state.materialBinding = binding->value.value;
  } else if (auto* normalBinding = dynamic_cast<QvNormalBinding*>(node)) {
    state.normalBinding = normalBinding->value.value;
  } else if (auto* coordinates = dynamic_cast<QvCoordinate3*>(node)) {
    state.coordinates = cached(points_, node, [&] { return floatsOf(numbersIn(coordinates->point)); });
  } else if (auto* normals = dynamic_cast<QvNormal*>(node)) {
    state.normals = cached(points_, node, [&] { return floatsOf(numbersIn(normals->vector)); });
    state.normalsGiven = true;
  } else if (auto* texCoords = dynamic_cast<QvTextureCoordinate2*>(node)) {
    state.textureCoordinates = cached(points_, node, [&] { return floatsOf(numbersIn(texCoords->point)); });
    state.textureCoordinatesGiven = true;
  } else if (auto* hints = dynamic_cast<QvShapeHints*>(node)) {
    state.vertexOrdering = hints->vertexOrdering.value;
    state.shapeType = hints->shapeType.value;
    state.faceType = hints->faceType.value;
    state.creaseAngle = static_cast<float>(numberIn(hints->creaseAngle));
  } else if (auto* texture = dynamic_cast<QvTexture2*>(node)) {
    state.texture = textures_.textureOf(*texture, directories_.back());
  } else if (auto* transform = dynamic_cast<QvTexture2Transform*>(node)) {
    const auto t = componentsIn<2>(transform->translation);
    const auto s = componentsIn<2>(transform->scaleFactor);
    const auto c = componentsIn<2>(transform->center);
    const double translation[2] = {t[0], t[1]}, scale[2] = {s[0], s[1]}, center[2] = {c[0], c[1]};
    state.textureTransform = multiply3(
        state.textureTransform, textureTransformMatrix(translation, numberIn(transform->rotation), scale, center));
  } else if (auto* unknown = dynamic_cast<QvUnknownNode*>(node)) {
    // Complexity is no class of the reader's; a scene may still declare it.
    if (std::strcmp(unknown->getClassName(), "Complexity") == 0) {
      if (auto* value = dynamic_cast<QvSFFloat*>(unknown->findDeclaredField("value"))) {
        state.complexity = static_cast<float>(numberIn(*value));
      }
    }
  } else if (dynamic_cast<QvAsciiText*>(node) != nullptr) {
    if (!textWarned_) messages_.warning("AsciiText is not exported");
    textWarned_ = true;
  } else {
    return false;
  }
  return true;
}

bool SceneTraversal::visitShape(QvNode* node, TraversalState& state) {
  if (auto* cube = dynamic_cast<QvCube*>(node)) {
    place(node, state, [cube](ShapeContext& c) { return cubeMesh(*cube, c); });
  } else if (auto* sphere = dynamic_cast<QvSphere*>(node)) {
    place(node, state, [sphere](ShapeContext& c) { return sphereMesh(*sphere, c); });
  } else if (auto* cone = dynamic_cast<QvCone*>(node)) {
    place(node, state, [cone](ShapeContext& c) { return coneMesh(*cone, c); });
  } else if (auto* cylinder = dynamic_cast<QvCylinder*>(node)) {
    place(node, state, [cylinder](ShapeContext& c) { return cylinderMesh(*cylinder, c); });
  } else if (auto* faces = dynamic_cast<QvIndexedFaceSet*>(node)) {
    place(node, state, [faces](ShapeContext& c) { return indexedFaceSetMesh(*faces, c); });
  } else if (auto* lines = dynamic_cast<QvIndexedLineSet*>(node)) {
    place(node, state, [lines](ShapeContext& c) { return indexedLineSetMesh(*lines, c); });
  } else if (auto* points = dynamic_cast<QvPointSet*>(node)) {
    place(node, state, [points](ShapeContext& c) { return pointSetMesh(*points, c); });
  } else {
    return false;
  }
  return true;
}

std::string SceneTraversal::nameFor(QvNode* node, const TraversalState& state) {
  if (node->hasName() && node->getName() != nullptr) return node->getName();
  return state.groupName;
}

void SceneTraversal::place(QvNode* shape, TraversalState& state, const MeshMaker& make) {
  const auto key = std::make_pair(static_cast<const QvNode*>(shape), state.shapeKey());
  auto found = meshes_.find(key);
  int mesh = -1;
  if (found != meshes_.end()) {
    mesh = found->second;
  } else {
    ShapeContext context{state, scene_, materials_, messages_, segmentsFor(state.complexity, options_.tessellation)};
    ExportMesh made = make(context);
    if (!made.primitives.empty()) {
      made.name = nameFor(shape, state);
      mesh = static_cast<int>(scene_.meshes.size());
      scene_.meshes.push_back(std::move(made));
    }
    meshes_.emplace(key, mesh);
  }
  if (mesh < 0) return;
  ExportNode placed;
  placed.name = nameFor(shape, state);
  placed.matrix = state.matrix;
  placed.mesh = mesh;
  scene_.nodes.push_back(std::move(placed));
}

void SceneTraversal::addNode(QvNode* node, const TraversalState& state, const Matrix4& matrix, int camera, int light) {
  ExportNode placed;
  placed.name = nameFor(node, state);
  placed.matrix = matrix;
  placed.camera = camera;
  placed.light = light;
  scene_.nodes.push_back(std::move(placed));
}

bool SceneTraversal::visitCameraOrLight(QvNode* node, TraversalState& state) {
  auto cameraMatrix = [&](const std::array<double, 3>& position, const std::array<double, 4>& orientation) {
    return multiply(multiply(state.matrix, translationMatrix(position)),
                    rotationMatrix(Vec3{{orientation[0], orientation[1], orientation[2]}}, orientation[3]));
  };
  auto color = [](const std::array<double, 3>& c) {
    return std::array<float, 3>{{static_cast<float>(c[0]), static_cast<float>(c[1]), static_cast<float>(c[2])}};
  };
  if (auto* p = dynamic_cast<QvPerspectiveCamera*>(node)) {
    ExportCamera camera;
    camera.name = nameFor(node, state);
    camera.perspective = true;
    camera.heightAngle = static_cast<float>(numberIn(p->heightAngle));
    scene_.cameras.push_back(camera);
    addNode(node, state, cameraMatrix(componentsIn<3>(p->position), componentsIn<4>(p->orientation)),
            static_cast<int>(scene_.cameras.size()) - 1, -1);
  } else if (auto* o = dynamic_cast<QvOrthographicCamera*>(node)) {
    ExportCamera camera;
    camera.name = nameFor(node, state);
    camera.perspective = false;
    camera.height = static_cast<float>(numberIn(o->height));
    scene_.cameras.push_back(camera);
    addNode(node, state, cameraMatrix(componentsIn<3>(o->position), componentsIn<4>(o->orientation)),
            static_cast<int>(scene_.cameras.size()) - 1, -1);
  } else if (auto* d = dynamic_cast<QvDirectionalLight*>(node)) {
    ExportLight light;
    light.name = nameFor(node, state);
    light.type = LightType::kDirectional;
    light.on = numberIn(d->on) != 0;
    light.intensity = static_cast<float>(numberIn(d->intensity));
    light.color = color(componentsIn<3>(d->color));
    scene_.lights.push_back(light);
    addNode(node, state, multiply(state.matrix, rotationFromMinusZ(componentsIn<3>(d->direction))), -1,
            static_cast<int>(scene_.lights.size()) - 1);
  } else if (auto* p = dynamic_cast<QvPointLight*>(node)) {
    ExportLight light;
    light.name = nameFor(node, state);
    light.type = LightType::kPoint;
    light.on = numberIn(p->on) != 0;
    light.intensity = static_cast<float>(numberIn(p->intensity));
    light.color = color(componentsIn<3>(p->color));
    scene_.lights.push_back(light);
    addNode(node, state, multiply(state.matrix, translationMatrix(componentsIn<3>(p->location))), -1,
            static_cast<int>(scene_.lights.size()) - 1);
  } else if (auto* s = dynamic_cast<QvSpotLight*>(node)) {
    ExportLight light;
    light.name = nameFor(node, state);
    light.type = LightType::kSpot;
    light.on = numberIn(s->on) != 0;
    light.intensity = static_cast<float>(numberIn(s->intensity));
    light.color = color(componentsIn<3>(s->color));
    light.dropOffRate = static_cast<float>(numberIn(s->dropOffRate));
    light.cutOffAngle = static_cast<float>(numberIn(s->cutOffAngle));
    scene_.lights.push_back(light);
    const Matrix4 placed = multiply(translationMatrix(componentsIn<3>(s->location)),
                                    rotationFromMinusZ(componentsIn<3>(s->direction)));
    addNode(node, state, multiply(state.matrix, placed), -1, static_cast<int>(scene_.lights.size()) - 1);
  } else {
    return false;
  }
  return true;
}

void SceneTraversal::visitUse(QvUseStatement& use, TraversalState& state) {
  const char* text = use.expression().text();
  if (text == nullptr || std::strncmp(text, "use ", 4) != 0) return;
  auto found = names_.find(text + 4);
  if (found != names_.end()) visit(found->second, state);
}

void SceneTraversal::visitInline(QvWWWInline& node, TraversalState& state) {
  TraversalState inner = state;
  if (node.getNumChildren() > 0) {
    visitChildren(&node, inner);
    return;
  }
  std::string name = textIn(node.name);
  if (name.empty()) return;
  if (isUrl(name)) {
    messages_.countWarning("WWWInline of a URL left out");
    return;
  }
  if (name.compare(0, 7, "file://") == 0) name = name.substr(7);
  const std::string path = name[0] == '/' ? name : directories_.back() + name;
  if (const char* refusal = confinementRefusal(path.c_str(), false)) {
    messages_.countWarning("WWWInline " + path + " left out: " + refusal);
    return;
  }
  if (inlining_.count(path) != 0) return;
  auto known = inlineRoots_.find(path);
  if (known == inlineRoots_.end()) {
    QvNode* root = nullptr;
    int errorNumber = 0;
    if (FILE* file = openForReading(path.c_str(), errorNumber)) {
      inlineNames_.push_back(path);
      root = readPlainNodeInRun(file, inlineNames_.back().c_str());
      std::fclose(file);
    }
    known = inlineRoots_.emplace(path, root).first;
    if (root == nullptr) messages_.countWarning("Cannot read WWWInline file " + path + "; left out");
  }
  if (known->second == nullptr) return;
  // An inlined file has DEF names of its own.
  std::map<std::string, QvNode*> outerNames;
  outerNames.swap(names_);
  directories_.push_back(directoryOf(path));
  inlining_.insert(path);
  visit(known->second, inner);
  inlining_.erase(path);
  directories_.pop_back();
  names_.swap(outerNames);
}

}  // namespace lumeric
