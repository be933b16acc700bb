// Wavefront OBJ with its material library (.mtl) beside it.  Everything is
// in world coordinates, each placed mesh an object ("o") named after its
// node; under a mirror faces are wound the other way, so that their front
// stays outside.  Vertex colours follow the position ("v x y z r g b"), a
// texture transform is applied to the texture coordinates, lines are "l"
// and points "p".  A texture is written beside the OBJ as
// NAME-textureN.png (or .jpg) and named by the material's map_Kd.  On
// standard output there are no companions and no mtllib line.
#include <map>

#include "export/formats/ExportText.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {

namespace {

class ObjBuilder {
 public:
  ObjBuilder(const ExportScene& scene, const std::string& path, ExportMessages& messages)
      : scene_(scene), path_(path), messages_(messages), toStandardOutput_(path == "-"), textures_(scene, path) {}

  void build(ExportedFiles& files) {
    obj_ = "# " + generatorName() + "\n";
    mtl_ = obj_;
    const std::string mtlPath = companionPath(path_, ".mtl");
    if (!toStandardOutput_) obj_ += "mtllib " + baseName(mtlPath) + "\n";
    for (const ExportNode& node : scene_.nodes) {
      if (node.mesh >= 0 && static_cast<size_t>(node.mesh) < scene_.meshes.size()) addObject(node);
    }
    files.push_back(ExportedFile{path_, std::move(obj_)});
    if (toStandardOutput_) return;
    files.push_back(ExportedFile{mtlPath, std::move(mtl_)});
    textures_.appendTo(files);
  }

 private:
  void addObject(const ExportNode& node) {
    const ExportMesh& mesh = scene_.meshes[node.mesh];
    const WorldPlacement placement(node.matrix);
    bool named = false;
    for (const ExportPrimitive& primitive : mesh.primitives) {
      if (primitive.indices.empty()) continue;
      if (!primitiveIsWellFormed(primitive)) {
        messages_.countWarning("Malformed primitive left out");
        continue;
      }
      if (!named) {
        obj_ += "o " + objectNames_.make(node.name.empty() ? mesh.name : node.name, "object") + "\n";
        named = true;
      }
      addPrimitive(primitive, placement);
    }
  }

  void addPrimitive(const ExportPrimitive& primitive, const WorldPlacement& placement) {
    const ExportMaterial& material = sceneMaterial(primitive.material);
    const size_t count = primitive.vertexCount();
    for (size_t v = 0; v < count; ++v) {
      obj_ += "v";
      for (double c : placement.point(&primitive.positions[v * 3])) appendValue(static_cast<float>(c));
      if (!primitive.colors.empty()) {
        for (int i = 0; i < 3; ++i) appendValue(primitive.colors[v * 4 + i]);
      }
      obj_ += "\n";
    }
    const bool textured = !primitive.texCoords.empty();
    for (size_t v = 0; textured && v < count; ++v) {
      const std::array<float, 2> st =
          transformTexCoord(material.textureTransform, primitive.texCoords[v * 2], primitive.texCoords[v * 2 + 1]);
      obj_ += "vt";
      appendValue(st[0]);
      appendValue(st[1]);
      obj_ += "\n";
    }
    const bool withNormals = !primitive.normals.empty() && primitive.mode == PrimitiveMode::kTriangles;
    for (size_t v = 0; withNormals && v < count; ++v) {
      obj_ += "vn";
      for (float c : placement.normal(&primitive.normals[v * 3])) appendValue(c);
      obj_ += "\n";
    }
    obj_ += "usemtl " + materialName(primitive.material) + "\n";
    switch (primitive.mode) {
      case PrimitiveMode::kTriangles:
        for (size_t t = 0; t < primitive.indices.size() / 3; ++t) {
          obj_ += "f";
          for (uint32_t corner : triangleCorners(primitive, t, placement.mirrored())) {
            appendCorner(corner, textured, withNormals);
          }
          obj_ += "\n";
        }
        break;
      case PrimitiveMode::kLines:
        for (size_t s = 0; s < primitive.indices.size(); s += 2) {
          obj_ += "l";
          appendCorner(primitive.indices[s], textured, false);
          appendCorner(primitive.indices[s + 1], textured, false);
          obj_ += "\n";
        }
        break;
      case PrimitiveMode::kPoints:
        for (uint32_t point : primitive.indices) {
          obj_ += "p";
          appendCorner(point, false, false);
          obj_ += "\n";
        }
        break;
    }
    positions_ += count;
    if (textured) texCoords_ += count;
    if (withNormals) normals_ += count;
  }

  void appendValue(float value) {
    obj_ += ' ';
    appendNumber(obj_, value);
  }

  // " v", " v/vt", " v//vn" or " v/vt/vn", numbered from 1 across the file.
  void appendCorner(uint32_t index, bool textured, bool withNormals) {
    obj_ += ' ';
    appendInteger(obj_, positions_ + index + 1);
    if (!textured && !withNormals) return;
    obj_ += '/';
    if (textured) appendInteger(obj_, texCoords_ + index + 1);
    if (withNormals) {
      obj_ += '/';
      appendInteger(obj_, normals_ + index + 1);
    }
  }

  const ExportMaterial& sceneMaterial(int index) const {
    static const ExportMaterial kDefault;
    if (index < 0 || static_cast<size_t>(index) >= scene_.materials.size()) return kDefault;
    return scene_.materials[index];
  }

  // The material's name in the library, written there on first use.
  std::string materialName(int index) {
    if (index < 0 || static_cast<size_t>(index) >= scene_.materials.size()) index = -1;
    auto found = materialNames_.find(index);
    if (found != materialNames_.end()) return found->second;
    const ExportMaterial& material = sceneMaterial(index);
    const std::string name =
        materialNames_[index] = mtlNames_.make(material.name, index < 0 ? "default" : "material" + std::to_string(index));
    mtl_ += "\nnewmtl " + name + "\n";
    appendColor("Ka", material.ambient);
    appendColor("Kd", material.diffuse);
    appendColor("Ks", material.specular);
    appendColor("Ke", material.emissive);
    mtl_ += "Ns ";
    appendNumber(mtl_, material.shininess * 128.0f);
    mtl_ += "\nd ";
    appendNumber(mtl_, 1.0f - material.transparency);
    // Unlit lines and points: the colour as it stands (illum 0).
    mtl_ += material.unlit ? "\nillum 0\n" : "\nillum 2\n";
    const std::string texture = toStandardOutput_ ? std::string() : textures_.nameOf(material.texture);
    if (!texture.empty()) mtl_ += "map_Kd " + texture + "\n";
    return name;
  }

  void appendColor(const char* key, const std::array<float, 3>& color) {
    mtl_ += key;
    for (float c : color) {
      mtl_ += ' ';
      appendNumber(mtl_, c);
    }
    mtl_ += '\n';
  }

  const ExportScene& scene_;
  const std::string path_;
  ExportMessages& messages_;
  const bool toStandardOutput_;
  std::string obj_;
  std::string mtl_;
  TextureFiles textures_;
  UniqueNames objectNames_;
  UniqueNames mtlNames_;
  std::map<int, std::string> materialNames_;
  // Vertices, texture coordinates and normals written so far.
  size_t positions_ = 0;
  size_t texCoords_ = 0;
  size_t normals_ = 0;
};

}  // namespace

bool writeObj(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages) {
  ObjBuilder(scene, path, messages).build(files);
  return true;
}

}  // namespace lumeric
