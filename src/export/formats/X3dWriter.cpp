// X3D 3.3, XML encoding, Interchange profile.
//
// Placement: X3D's Transform has no matrix field, so a node whose matrix
// is exactly translation * rotation * positive scale becomes a Transform
// (DEF'd with the node's name) around its mesh; the first such use of a
// mesh DEFs a Group of its shapes and later uses USE it.  Any other matrix
// (shear, projection, a mirror) is baked: the shapes are written in world
// coordinates, mirrored triangles wound the other way.  Cameras and lights
// are written at the top of the scene in world coordinates (Viewpoint or
// OrthoViewpoint; global lights).  Appearances are DEF'd once per material
// and USEd again; a texture is written beside the file (NAME-textureN.png)
// and its transform applied to the texture coordinates.  Lines and points
// are unlit in X3D: they take the emissive colour, or the diffuse one when
// that is black.
#include <cmath>
#include <map>

#include "export/formats/ExportText.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/MatrixParts.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {

namespace {

constexpr double kPi = 3.14159265358979323846;

std::string escapeXml(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '&': out += "&amp;"; break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += "&quot;"; break;
      case '\'': out += "&apos;"; break;
      default:
        // Control characters other than tab, line feed and carriage return
        // are not allowed in XML at all.
        out += static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r' ? ' ' : c;
    }
  }
  return out;
}

// One MFString value: the text in double quotes, its quotes and
// backslashes escaped.
std::string mfString(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

class X3dBuilder {
 public:
  X3dBuilder(const ExportScene& scene, const std::string& path, ExportMessages& messages)
      : scene_(scene), path_(path), messages_(messages), textures_(scene, path) {}

  void build(ExportedFiles& files) {
    std::string body;
    for (const ExportNode& node : scene_.nodes) addViewers(node, body);
    for (const ExportNode& node : scene_.nodes) {
      if (node.mesh >= 0 && static_cast<size_t>(node.mesh) < scene_.meshes.size()) addMeshNode(node, body);
    }
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<!DOCTYPE X3D PUBLIC \"ISO//Web3D//DTD X3D 3.3//EN\" "
                      "\"http://www.web3d.org/specifications/x3d-3.3.dtd\">\n"
                      "<X3D profile=\"Interchange\" version=\"3.3\" "
                      "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema-instance\" "
                      "xsd:noNamespaceSchemaLocation=\"http://www.web3d.org/specifications/x3d-3.3.xsd\">\n"
                      "  <head>\n";
    // What the Interchange profile lacks.
    if (orthographic_) out += "    <component name=\"Navigation\" level=\"3\"/>\n";
    if (pointOrSpot_) out += "    <component name=\"Lighting\" level=\"2\"/>\n";
    out += "    <meta name=\"generator\" content=\"" + escapeXml(generatorName()) + "\"/>\n  </head>\n  <Scene>\n";
    out += body;
    out += "  </Scene>\n</X3D>\n";
    files.push_back(ExportedFile{path_, std::move(out)});
    if (path_ != "-") textures_.appendTo(files);
  }

 private:
  void defAttribute(std::string& out, const std::string& name, const std::string& fallback) {
    if (name.empty() && fallback.empty()) return;
    out += " DEF=\"" + names_.make(name, fallback) + "\"";
  }

  // Numbers are written with the precision of the scene's floats.
  void numbers(std::string& out, const char* attribute, const double* values, int count) {
    out += ' ';
    out += attribute;
    out += "=\"";
    for (int i = 0; i < count; ++i) {
      if (i > 0) out += ' ';
      appendNumber(out, static_cast<float>(values[i]));
    }
    out += '"';
  }

  void color(std::string& out, const char* attribute, const std::array<float, 3>& c) {
    const double values[3] = {c[0], c[1], c[2]};
    numbers(out, attribute, values, 3);
  }

  void addViewers(const ExportNode& node, std::string& out) {
    if (node.camera >= 0 && static_cast<size_t>(node.camera) < scene_.cameras.size()) {
      addCamera(scene_.cameras[node.camera], node.matrix, out);
    }
    if (node.light >= 0 && static_cast<size_t>(node.light) < scene_.lights.size()) {
      addLight(scene_.lights[node.light], node.matrix, out);
    }
  }

  void addCamera(const ExportCamera& camera, const Matrix4& matrix, std::string& out) {
    const MatrixParts parts = rigidParts(matrix);
    const std::array<double, 4> orientation = axisAngle(parts.rotation);
    const double aspect = camera.aspectRatio > 0 && std::isfinite(camera.aspectRatio) ? camera.aspectRatio : 1.0;
    out += camera.perspective ? "    <Viewpoint" : "    <OrthoViewpoint";
    defAttribute(out, camera.name, "");
    if (!camera.name.empty()) out += " description=\"" + escapeXml(camera.name) + "\"";
    numbers(out, "position", parts.translation.data(), 3);
    numbers(out, "orientation", orientation.data(), 4);
    if (camera.perspective) {
      // X3D's field of view is the smaller of the two angles.
      double angle = camera.heightAngle > 0 && camera.heightAngle < kPi ? camera.heightAngle : kPi / 4;
      if (aspect < 1) angle = 2 * std::atan(std::tan(angle / 2) * aspect);
      numbers(out, "fieldOfView", &angle, 1);
    } else {
      orthographic_ = true;
      const double height = camera.height > 0 && std::isfinite(camera.height) ? camera.height : 2.0;
      const double extent[4] = {-height * aspect / 2, -height / 2, height * aspect / 2, height / 2};
      numbers(out, "fieldOfView", extent, 4);
    }
    out += "/>\n";
  }

  void addLight(const ExportLight& light, const Matrix4& m, std::string& out) {
    static const char* const kNames[] = {"DirectionalLight", "PointLight", "SpotLight"};
    out += "    <";
    out += kNames[static_cast<int>(light.type)];
    defAttribute(out, light.name, "");
    out += " global=\"true\"";
    if (!light.on) out += " on=\"false\"";
    color(out, "color", light.color);
    const double intensity = light.intensity < 0 ? 0 : light.intensity > 1 ? 1 : light.intensity;
    numbers(out, "intensity", &intensity, 1);
    if (light.type != LightType::kDirectional) {
      pointOrSpot_ = true;
      const double location[3] = {m[12], m[13], m[14]};
      numbers(out, "location", location, 3);
    }
    if (light.type != LightType::kPoint) {
      // The node's -Z, placed.
      double direction[3] = {-m[8], -m[9], -m[10]};
      const double length = std::sqrt(direction[0] * direction[0] + direction[1] * direction[1] + direction[2] * direction[2]);
      if (length > 0 && std::isfinite(length)) {
        for (double& d : direction) d /= length;
        numbers(out, "direction", direction, 3);
      }
    }
    if (light.type == LightType::kSpot) {
      const double cutOff = light.cutOffAngle > 0 && light.cutOffAngle <= kPi / 2 ? light.cutOffAngle : kPi / 4;
      const double dropOff = light.dropOffRate < 0 ? 0 : light.dropOffRate > 1 ? 1 : light.dropOffRate;
      const double beamWidth = cutOff * (1 - dropOff);
      numbers(out, "cutOffAngle", &cutOff, 1);
      numbers(out, "beamWidth", &beamWidth, 1);
    }
    out += "/>\n";
  }

  void addMeshNode(const ExportNode& node, std::string& out) {
    const ExportMesh& mesh = scene_.meshes[node.mesh];
    // The node's name is taken first, in document order.
    std::string def;
    defAttribute(def, node.name, "");
    MatrixParts parts;
    const bool transform = decomposeMatrix(node.matrix, parts) && parts.scale[0] > 0;
    if (!transform) {
      const WorldPlacement placement(node.matrix);
      std::string shapes;
      for (const ExportPrimitive& primitive : mesh.primitives) addShape(primitive, &placement, shapes, "      ");
      if (!shapes.empty()) out += "    <Group" + def + ">\n" + shapes + "    </Group>\n";
      return;
    }
    auto defined = meshGroups_.find(node.mesh);
    std::string group;
    if (defined != meshGroups_.end()) {
      if (defined->second.empty()) return;  // nothing of it could be written
      group = "      <Group USE=\"" + defined->second + "\"/>\n";
    } else {
      std::string& name = meshGroups_[node.mesh];
      const std::string groupName = names_.make(mesh.name, "mesh" + std::to_string(node.mesh + 1));
      std::string shapes;
      for (const ExportPrimitive& primitive : mesh.primitives) addShape(primitive, nullptr, shapes, "        ");
      if (shapes.empty()) return;
      name = groupName;
      group = "      <Group DEF=\"" + name + "\">\n" + shapes + "      </Group>\n";
    }
    out += "    <Transform" + def;
    if (parts.translation != std::array<double, 3>{{0, 0, 0}}) numbers(out, "translation", parts.translation.data(), 3);
    if (parts.rotation != std::array<double, 4>{{0, 0, 0, 1}}) {
      numbers(out, "rotation", axisAngle(parts.rotation).data(), 4);
    }
    if (parts.scale != std::array<double, 3>{{1, 1, 1}}) numbers(out, "scale", parts.scale.data(), 3);
    out += ">\n" + group + "    </Transform>\n";
  }

  const ExportMaterial& sceneMaterial(int index) const {
    static const ExportMaterial kDefault;
    if (index < 0 || static_cast<size_t>(index) >= scene_.materials.size()) return kDefault;
    return scene_.materials[index];
  }

  void addAppearance(int index, const std::string& indent, std::string& out) {
    if (index < 0 || static_cast<size_t>(index) >= scene_.materials.size()) index = -1;
    auto found = appearances_.find(index);
    if (found != appearances_.end()) {
      out += indent + "<Appearance USE=\"" + found->second + "\"/>\n";
      return;
    }
    const ExportMaterial& m = sceneMaterial(index);
    const std::string name = appearances_[index] =
        names_.make(m.name, index < 0 ? "default" : "material" + std::to_string(index + 1));
    out += indent + "<Appearance DEF=\"" + name + "\">\n" + indent + "  <Material";
    const bool emissiveBlack = m.emissive[0] == 0 && m.emissive[1] == 0 && m.emissive[2] == 0;
    color(out, "diffuseColor", m.diffuse);
    color(out, "emissiveColor", m.unlit && emissiveBlack ? m.diffuse : m.emissive);
    color(out, "specularColor", m.specular);
    const double diffuseMean = (m.diffuse[0] + m.diffuse[1] + m.diffuse[2]) / 3.0;
    const double ambientMean = (m.ambient[0] + m.ambient[1] + m.ambient[2]) / 3.0;
    // X3D's ambient colour is a share of the diffuse one.
    double ambientIntensity = diffuseMean > 0 ? ambientMean / diffuseMean : 0;
    ambientIntensity = ambientIntensity < 0 ? 0 : ambientIntensity > 1 ? 1 : ambientIntensity;
    const double shininess = m.shininess < 0 ? 0 : m.shininess > 1 ? 1 : m.shininess;
    const double transparency = m.transparency < 0 ? 0 : m.transparency > 1 ? 1 : m.transparency;
    numbers(out, "ambientIntensity", &ambientIntensity, 1);
    numbers(out, "shininess", &shininess, 1);
    numbers(out, "transparency", &transparency, 1);
    out += "/>\n";
    const std::string texture = path_ == "-" ? std::string() : textures_.nameOf(m.texture);
    if (!texture.empty()) {
      const ExportTexture& source = scene_.textures[m.texture];
      out += indent + "  <ImageTexture url=\"" + escapeXml(mfString(texture)) + "\"";
      if (!source.repeatS) out += " repeatS=\"false\"";
      if (!source.repeatT) out += " repeatT=\"false\"";
      out += "/>\n";
    }
    out += indent + "</Appearance>\n";
  }

  void addShape(const ExportPrimitive& primitive, const WorldPlacement* placement, std::string& out,
                const std::string& indent) {
    if (primitive.indices.empty()) return;
    if (!primitiveIsWellFormed(primitive)) {
      messages_.countWarning("Malformed primitive left out");
      return;
    }
    out += indent + "<Shape>\n";
    addAppearance(primitive.material, indent + "  ", out);
    const std::string inner = indent + "  ";
    const bool mirrored = placement != nullptr && placement->mirrored();
    std::vector<uint32_t> used;  // the vertices written, in order
    switch (primitive.mode) {
      case PrimitiveMode::kTriangles: {
        out += inner + "<IndexedTriangleSet";
        if (sceneMaterial(primitive.material).doubleSided) out += " solid=\"false\"";
        out += " index=\"";
        for (size_t t = 0; t < primitive.indices.size() / 3; ++t) {
          for (uint32_t corner : triangleCorners(primitive, t, mirrored)) {
            appendInteger(out, corner);
            out += ' ';
          }
        }
        out.back() = '"';
        out += ">\n";
        break;
      }
      case PrimitiveMode::kLines:
        out += inner + "<IndexedLineSet coordIndex=\"";
        for (size_t s = 0; s < primitive.indices.size(); s += 2) {
          appendInteger(out, primitive.indices[s]);
          out += ' ';
          appendInteger(out, primitive.indices[s + 1]);
          out += " -1 ";
        }
        out.back() = '"';
        out += ">\n";
        break;
      case PrimitiveMode::kPoints:
        // A PointSet draws every point it has: only the ones indexed.
        used = primitive.indices;
        out += inner + "<PointSet>\n";
        break;
    }
    addVertexData(primitive, placement, used, inner + "  ", out);
    static const char* const kEnds[] = {"</IndexedTriangleSet>", "</IndexedLineSet>", "</PointSet>"};
    out += inner + kEnds[static_cast<int>(primitive.mode)] + "\n" + indent + "</Shape>\n";
  }

  // Coordinate, Normal, TextureCoordinate and ColorRGBA of the vertices
  // `used`, or of all of them when `used` is empty.
  void addVertexData(const ExportPrimitive& primitive, const WorldPlacement* placement,
                     const std::vector<uint32_t>& used, const std::string& indent, std::string& out) {
    const size_t count = used.empty() ? primitive.vertexCount() : used.size();
    auto vertex = [&used](size_t i) { return used.empty() ? i : used[i]; };
    out += indent + "<Coordinate point=\"";
    for (size_t i = 0; i < count; ++i) {
      const float* p = &primitive.positions[vertex(i) * 3];
      std::array<double, 3> world{{p[0], p[1], p[2]}};
      if (placement != nullptr) world = placement->point(p);
      appendTuple(out, world.data(), 3, i);
    }
    out += "\"/>\n";
    if (!primitive.normals.empty() && primitive.mode == PrimitiveMode::kTriangles) {
      out += indent + "<Normal vector=\"";
      const WorldPlacement identity(identityMatrix());
      for (size_t i = 0; i < count; ++i) {
        const std::array<float, 3> n = (placement != nullptr ? *placement : identity).normal(&primitive.normals[vertex(i) * 3]);
        const double values[3] = {n[0], n[1], n[2]};
        appendTuple(out, values, 3, i);
      }
      out += "\"/>\n";
    }
    if (!primitive.texCoords.empty()) {
      const ExportMaterial& material = sceneMaterial(primitive.material);
      out += indent + "<TextureCoordinate point=\"";
      for (size_t i = 0; i < count; ++i) {
        const float* st = &primitive.texCoords[vertex(i) * 2];
        const std::array<float, 2> moved = transformTexCoord(material.textureTransform, st[0], st[1]);
        const double values[2] = {moved[0], moved[1]};
        appendTuple(out, values, 2, i);
      }
      out += "\"/>\n";
    }
    if (!primitive.colors.empty()) {
      out += indent + "<ColorRGBA color=\"";
      for (size_t i = 0; i < count; ++i) {
        const float* c = &primitive.colors[vertex(i) * 4];
        double values[4];
        for (int k = 0; k < 4; ++k) values[k] = c[k] < 0 ? 0 : c[k] > 1 ? 1 : c[k];
        appendTuple(out, values, 4, i);
      }
      out += "\"/>\n";
    }
  }

  static void appendTuple(std::string& out, const double* values, int count, size_t position) {
    if (position > 0) out += ", ";
    for (int k = 0; k < count; ++k) {
      if (k > 0) out += ' ';
      appendNumber(out, static_cast<float>(values[k]));
    }
  }

  const ExportScene& scene_;
  const std::string path_;
  ExportMessages& messages_;
  TextureFiles textures_;
  UniqueNames names_;
  std::map<int, std::string> meshGroups_;   // mesh -> its Group's DEF ("" when empty)
  std::map<int, std::string> appearances_;  // material -> its Appearance's DEF
  bool orthographic_ = false;
  bool pointOrSpot_ = false;
};

}  // namespace

bool writeX3d(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  X3dBuilder(scene, path, messages).build(files);
  return true;
}

}  // namespace lumeric
