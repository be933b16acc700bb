#include "export/SceneTraversal.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>

#include "core/FileAccess.h"
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

// Every node class the traversal knows, found by the node's exact type
// (one look-up per node instead of a cast for each class).
#define LUMERIC_EXPORT_NODE_CLASSES(X) \
  X(AsciiText) \
  X(Cone) \
  X(Coordinate3) \
  X(Cube) \
  X(Cylinder) \
  X(DirectionalLight) \
  X(Group) \
  X(IndexedFaceSet) \
  X(IndexedLineSet) \
  X(LOD) \
  X(Material) \
  X(MaterialBinding) \
  X(MatrixTransform) \
  X(Normal) \
  X(NormalBinding) \
  X(OrthographicCamera) \
  X(PerspectiveCamera) \
  X(PointLight) \
  X(PointSet) \
  X(Rotation) \
  X(Scale) \
  X(Separator) \
  X(ShapeHints) \
  X(Sphere) \
  X(SpotLight) \
  X(Switch) \
  X(Texture2) \
  X(Texture2Transform) \
  X(TextureCoordinate2) \
  X(Transform) \
  X(TransformSeparator) \
  X(Translation) \
  X(UnknownNode) \
  X(UseStatement) \
  X(WWWAnchor) \
  X(WWWInline)

enum class NodeKind : int {
  kOther,
#define LUMERIC_KIND(name) k##name,
  LUMERIC_EXPORT_NODE_CLASSES(LUMERIC_KIND)
#undef LUMERIC_KIND
};

namespace {

template <class T>
struct KindOf;
#define LUMERIC_KIND_OF(name)                                       \
  template <>                                                       \
  struct KindOf<Qv##name> {                                         \
    [[maybe_unused]] static constexpr NodeKind value = NodeKind::k##name; \
  };
LUMERIC_EXPORT_NODE_CLASSES(LUMERIC_KIND_OF)
#undef LUMERIC_KIND_OF

NodeKind kindOf(QvNode* node) {
  static const std::unordered_map<std::type_index, NodeKind> kinds{
#define LUMERIC_KIND_ENTRY(name) {std::type_index(typeid(Qv##name)), NodeKind::k##name},
      LUMERIC_EXPORT_NODE_CLASSES(LUMERIC_KIND_ENTRY)
#undef LUMERIC_KIND_ENTRY
  };
  auto found = kinds.find(std::type_index(typeid(*node)));
  return found == kinds.end() ? NodeKind::kOther : found->second;
}

// The node as class T when it is exactly of that class, else null.
template <class T>
T* nodeAs(QvNode* node, NodeKind kind) {
  return kind == KindOf<T>::value ? static_cast<T*>(node) : nullptr;
}

}  // namespace

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
                               const std::string& fileName, InlineReader readInline)
    : scene_(scene),
      messages_(messages),
      options_(options),
      readInline_(std::move(readInline)),
      materials_(scene),
      textures_(scene, messages) {
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
  if (path_.size() >= kMaxDepth) return;
  if (node->hasName()) {
    const char* name = node->getName();
    if (name != nullptr) names_[name] = node;
  }
  const NodeKind kind = kindOf(node);
  path_.push_back(node);
  if (auto* use = nodeAs<QvUseStatement>(node, kind)) {
    visitUse(*use, state);
  } else if (!visitGroup(node, kind, state) && !visitTransformation(node, kind, state) &&
             !visitProperty(node, kind, state) && !visitShape(node, kind, state)) {
    visitCameraOrLight(node, kind, state);
  }
  path_.pop_back();
}

void SceneTraversal::defineNames(QvNode* node) {
  if (node == nullptr || budgetSpent_ || ++visits_ > options_.maxVisits) return;
  if (node->hasName()) {
    const char* name = node->getName();
    if (name != nullptr) names_[name] = node;
  }
  if (!node->isGroup()) return;
  auto* group = static_cast<QvGroupNode*>(node);
  for (int i = 0; i < group->getNumChildren(); ++i) defineNames(group->getChild(i));
}

void SceneTraversal::visitChildren(QvGroupNode* group, TraversalState& state) {
  for (int i = 0; i < group->getNumChildren(); ++i) visit(group->getChild(i), state);
}

bool SceneTraversal::visitGroup(QvNode* node, NodeKind kind, TraversalState& state) {
  if (!node->isGroup() || nodeAs<QvUnknownNode>(node, kind) != nullptr || kind == NodeKind::kOther) return false;
  auto* group = static_cast<QvGroupNode*>(node);
  const std::string outerName = state.groupName;
  if (node->hasName() && node->getName() != nullptr) state.groupName = node->getName();
  if (nodeAs<QvSeparator>(node, kind) != nullptr) {
    TraversalState inner = state;
    visitChildren(group, inner);
  } else if (nodeAs<QvTransformSeparator>(node, kind) != nullptr) {
    const Matrix4 saved = state.matrix;
    visitChildren(group, state);
    state.matrix = saved;
  } else if (auto* choice = nodeAs<QvSwitch>(node, kind)) {
    double which = numberIn(choice->whichChild);
    if (which == -2) which = state.switchChoice;
    state.switchChoice = which;
    if (which == -3) {
      visitChildren(group, state);
    } else {
      for (int i = 0; i < group->getNumChildren(); ++i) {
        if (i == which) {
          visit(group->getChild(i), state);
        } else {
          defineNames(group->getChild(i));
        }
      }
    }
  } else if (nodeAs<QvLOD>(node, kind) != nullptr) {
    for (int i = 0; i < group->getNumChildren(); ++i) {
      if (i == 0) {
        visit(group->getChild(i), state);
      } else {
        defineNames(group->getChild(i));
      }
    }
  } else if (auto* inlined = nodeAs<QvWWWInline>(node, kind)) {
    visitInline(*inlined, state);
  } else {
    // Group, WWWAnchor.
    visitChildren(group, state);
  }
  state.groupName = outerName;
  return true;
}

bool SceneTraversal::visitTransformation(QvNode* node, NodeKind kind, TraversalState& state) {
  Matrix4 m;
  if (auto* t = nodeAs<QvTransform>(node, kind)) {
    m = transformMatrix(*t);
  } else if (auto* translation = nodeAs<QvTranslation>(node, kind)) {
    m = translationMatrix(vec3(componentsIn<3>(translation->translation)));
  } else if (auto* r = nodeAs<QvRotation>(node, kind)) {
    const auto v = componentsIn<4>(r->rotation);
    m = rotationMatrix(Vec3{{v[0], v[1], v[2]}}, v[3]);
  } else if (auto* s = nodeAs<QvScale>(node, kind)) {
    m = scaleMatrix(vec3(componentsIn<3>(s->scaleFactor)));
  } else if (auto* mt = nodeAs<QvMatrixTransform>(node, kind)) {
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

bool SceneTraversal::visitProperty(QvNode* node, NodeKind kind, TraversalState& state) {
  if (auto* material = nodeAs<QvMaterial>(node, kind)) {
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
  } else if (auto* binding = nodeAs<QvMaterialBinding>(node, kind)) {
    state.materialBinding = binding->value.value;
  } else if (auto* normalBinding = nodeAs<QvNormalBinding>(node, kind)) {
    state.normalBinding = normalBinding->value.value;
  } else if (auto* coordinates = nodeAs<QvCoordinate3>(node, kind)) {
    state.coordinates = cached(points_, node, [&] { return floatsOf(numbersIn(coordinates->point)); });
  } else if (auto* normals = nodeAs<QvNormal>(node, kind)) {
    state.normals = cached(points_, node, [&] { return floatsOf(numbersIn(normals->vector)); });
    state.normalsGiven = true;
  } else if (auto* texCoords = nodeAs<QvTextureCoordinate2>(node, kind)) {
    state.textureCoordinates = cached(points_, node, [&] { return floatsOf(numbersIn(texCoords->point)); });
    state.textureCoordinatesGiven = true;
  } else if (auto* hints = nodeAs<QvShapeHints>(node, kind)) {
    state.vertexOrdering = hints->vertexOrdering.value;
    state.shapeType = hints->shapeType.value;
    state.faceType = hints->faceType.value;
    state.creaseAngle = static_cast<float>(numberIn(hints->creaseAngle));
  } else if (auto* texture = nodeAs<QvTexture2>(node, kind)) {
    state.texture = textures_.textureOf(*texture, directories_.back());
  } else if (auto* transform = nodeAs<QvTexture2Transform>(node, kind)) {
    const auto t = componentsIn<2>(transform->translation);
    const auto s = componentsIn<2>(transform->scaleFactor);
    const auto c = componentsIn<2>(transform->center);
    const double translation[2] = {t[0], t[1]}, scale[2] = {s[0], s[1]}, center[2] = {c[0], c[1]};
    state.textureTransform = multiply3(
        state.textureTransform, textureTransformMatrix(translation, numberIn(transform->rotation), scale, center));
  } else if (auto* unknown = nodeAs<QvUnknownNode>(node, kind)) {
    // Complexity is no class of the reader's; a scene may still declare it.
    if (std::strcmp(unknown->getClassName(), "Complexity") == 0) {
      if (auto* value = dynamic_cast<QvSFFloat*>(unknown->findDeclaredField("value"))) {
        state.complexity = static_cast<float>(numberIn(*value));
      }
    }
  } else if (nodeAs<QvAsciiText>(node, kind) != nullptr) {
    if (!textWarned_) messages_.warning("AsciiText is not exported");
    textWarned_ = true;
  } else {
    return false;
  }
  return true;
}

namespace {

// What makes a primitive's mesh: its class and its field values, so that
// equal primitives (a generator's many copies) share one mesh.
template <class... Numbers>
std::string primitiveIdentity(const char* kind, Numbers... numbers) {
  std::string identity = kind;
  for (double v : {static_cast<double>(numbers)...}) identity.append(reinterpret_cast<const char*>(&v), sizeof v);
  return identity;
}

// Any other shape's mesh is made from the node itself.
std::string nodeIdentity(const QvNode* node) {
  return std::string(reinterpret_cast<const char*>(&node), sizeof node);
}

}  // namespace

bool SceneTraversal::visitShape(QvNode* node, NodeKind kind, TraversalState& state) {
  if (auto* cube = nodeAs<QvCube>(node, kind)) {
    place(node, primitiveIdentity("Cube", numberIn(cube->width), numberIn(cube->height), numberIn(cube->depth)),
          state, [cube](ShapeContext& c) { return cubeMesh(*cube, c); });
  } else if (auto* sphere = nodeAs<QvSphere>(node, kind)) {
    place(node, primitiveIdentity("Sphere", numberIn(sphere->radius)), state,
          [sphere](ShapeContext& c) { return sphereMesh(*sphere, c); });
  } else if (auto* cone = nodeAs<QvCone>(node, kind)) {
    place(node,
          primitiveIdentity("Cone", cone->parts.value, numberIn(cone->bottomRadius), numberIn(cone->height)), state,
          [cone](ShapeContext& c) { return coneMesh(*cone, c); });
  } else if (auto* cylinder = nodeAs<QvCylinder>(node, kind)) {
    place(node,
          primitiveIdentity("Cylinder", cylinder->parts.value, numberIn(cylinder->radius), numberIn(cylinder->height)),
          state, [cylinder](ShapeContext& c) { return cylinderMesh(*cylinder, c); });
  } else if (auto* faces = nodeAs<QvIndexedFaceSet>(node, kind)) {
    place(node, nodeIdentity(node), state, [faces](ShapeContext& c) { return indexedFaceSetMesh(*faces, c); });
  } else if (auto* lines = nodeAs<QvIndexedLineSet>(node, kind)) {
    place(node, nodeIdentity(node), state, [lines](ShapeContext& c) { return indexedLineSetMesh(*lines, c); });
  } else if (auto* points = nodeAs<QvPointSet>(node, kind)) {
    place(node, nodeIdentity(node), state, [points](ShapeContext& c) { return pointSetMesh(*points, c); });
  } else {
    return false;
  }
  return true;
}

std::string SceneTraversal::nameFor(QvNode* node, const TraversalState& state) {
  if (node->hasName() && node->getName() != nullptr) return node->getName();
  return state.groupName;
}

void SceneTraversal::place(QvNode* shape, const std::string& identity, TraversalState& state,
                           const MeshMaker& make) {
  const std::string key = identity + state.shapeKey();
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

bool SceneTraversal::visitCameraOrLight(QvNode* node, NodeKind kind, TraversalState& state) {
  auto cameraMatrix = [&](const std::array<double, 3>& position, const std::array<double, 4>& orientation) {
    return multiply(multiply(state.matrix, translationMatrix(position)),
                    rotationMatrix(Vec3{{orientation[0], orientation[1], orientation[2]}}, orientation[3]));
  };
  auto color = [](const std::array<double, 3>& c) {
    return std::array<float, 3>{{static_cast<float>(c[0]), static_cast<float>(c[1]), static_cast<float>(c[2])}};
  };
  if (auto* p = nodeAs<QvPerspectiveCamera>(node, kind)) {
    ExportCamera camera;
    camera.name = nameFor(node, state);
    camera.perspective = true;
    camera.heightAngle = static_cast<float>(numberIn(p->heightAngle));
    scene_.cameras.push_back(camera);
    addNode(node, state, cameraMatrix(componentsIn<3>(p->position), componentsIn<4>(p->orientation)),
            static_cast<int>(scene_.cameras.size()) - 1, -1);
  } else if (auto* o = nodeAs<QvOrthographicCamera>(node, kind)) {
    ExportCamera camera;
    camera.name = nameFor(node, state);
    camera.perspective = false;
    camera.height = static_cast<float>(numberIn(o->height));
    scene_.cameras.push_back(camera);
    addNode(node, state, cameraMatrix(componentsIn<3>(o->position), componentsIn<4>(o->orientation)),
            static_cast<int>(scene_.cameras.size()) - 1, -1);
  } else if (auto* d = nodeAs<QvDirectionalLight>(node, kind)) {
    ExportLight light;
    light.name = nameFor(node, state);
    light.type = LightType::kDirectional;
    light.on = numberIn(d->on) != 0;
    light.intensity = static_cast<float>(numberIn(d->intensity));
    light.color = color(componentsIn<3>(d->color));
    scene_.lights.push_back(light);
    addNode(node, state, multiply(state.matrix, rotationFromMinusZ(componentsIn<3>(d->direction))), -1,
            static_cast<int>(scene_.lights.size()) - 1);
  } else if (auto* point = nodeAs<QvPointLight>(node, kind)) {
    ExportLight light;
    light.name = nameFor(node, state);
    light.type = LightType::kPoint;
    light.on = numberIn(point->on) != 0;
    light.intensity = static_cast<float>(numberIn(point->intensity));
    light.color = color(componentsIn<3>(point->color));
    scene_.lights.push_back(light);
    addNode(node, state, multiply(state.matrix, translationMatrix(componentsIn<3>(point->location))), -1,
            static_cast<int>(scene_.lights.size()) - 1);
  } else if (auto* s = nodeAs<QvSpotLight>(node, kind)) {
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
  if (found == names_.end()) return;
  // A node cannot contain itself: a USE of an enclosing node is left out.
  for (const QvNode* enclosing : path_) {
    if (enclosing == found->second) return;
  }
  visit(found->second, state);
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
      scene_.filesRead.push_back(path);
      root = readInline_(file, inlineNames_.back().c_str());
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
