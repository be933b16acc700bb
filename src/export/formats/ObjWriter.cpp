// Wavefront OBJ with its material library (.mtl) beside it.  Everything is
// in world coordinates, each placed mesh an object ("o") named after its
// node; under a mirror faces are wound the other way, so that their front
// stays outside.  Vertex colours follow the position ("v x y z r g b"), a
// texture transform is applied to the texture coordinates, lines are "l"
// and points "p".  A texture is written beside the OBJ as
// NAME-textureN.png (or .jpg) and named by the material's map_Kd.  On
// standard output there are no companions and no mtllib line.  The OBJ is
// streamed to its target (ExportFiles.h).
#include <map>
#include <memory>
#include <vector>

#include "export/formats/ExportFiles.h"
#include "export/formats/ExportText.h"
#include "export/formats/FormatWriters.h"
#include "export/formats/WorldPlacement.h"

namespace lumeric {

namespace {

class ObjBuilder {
 public:
  ObjBuilder(const ExportScene& scene, const std::string& path, ExportMessages& messages)
      : scene_(scene), path_(path), toStandardOutput_(path == "-"), textures_(scene, path) {
    plan(messages);
  }

  // The OBJ streamed (it holds every copy of a mesh in world coordinates,
  // so it may be far larger than the scene), the material library and the
  // textures whole.  The builder lives as long as the files.
  static void build(const std::shared_ptr<ObjBuilder>& builder, ExportedFiles& files) {
    files.push_back(ExportedFile{builder->path_, std::string(),
                                 [builder](FILE* stream) { return builder->stream(stream); }});
    if (builder->toStandardOutput_) return;
    files.push_back(ExportedFile{companionPath(builder->path_, ".mtl"), builder->mtl_, nullptr});
    builder->textures_.appendTo(files);
  }

 private:
  // A primitive to write; `first` starts its node's object.
  struct Planned {
    const ExportNode* node;
    const ExportPrimitive* primitive;
    bool first;
  };

  // Chooses what is written, with a warning for each primitive left out,
  // and writes the material library in the order materials are first used.
  void plan(ExportMessages& messages) {
    mtl_ = "# " + generatorName() + "\n";
    for (const ExportNode& node : scene_.nodes) {
      if (node.mesh < 0 || static_cast<size_t>(node.mesh) >= scene_.meshes.size()) continue;
      bool first = true;
      for (const ExportPrimitive& primitive : scene_.meshes[node.mesh].primitives) {
        if (primitive.indices.empty()) continue;
        if (!primitiveIsWellFormed(primitive)) {
          messages.countWarning("Malformed primitive left out");
          continue;
        }
        planned_.push_back(Planned{&node, &primitive, first});
        first = false;
        materialName(primitive.material);
      }
    }
  }

  int stream(FILE* stream) {
    SpillingText out(stream);
    obj_ = &out.text();
    *obj_ = "# " + generatorName() + "\n";
    if (!toStandardOutput_) *obj_ += "mtllib " + baseName(companionPath(path_, ".mtl")) + "\n";
    objectNames_ = UniqueNames();
    positions_ = texCoords_ = normals_ = 0;
    for (const Planned& p : planned_) {
      if (p.first) {
        const ExportNode& node = *p.node;
        *obj_ += "o " + objectNames_.make(node.name.empty() ? scene_.meshes[node.mesh].name : node.name, "object") + "\n";
      }
      addPrimitive(*p.primitive, WorldPlacement(p.node->matrix));
      if (out.spill() != 0) break;
    }
    obj_ = nullptr;
    return out.spill(true);
  }

  void addPrimitive(const ExportPrimitive& primitive, const WorldPlacement& placement) {
    const ExportMaterial& material = sceneMaterial(primitive.material);
    const size_t count = primitive.vertexCount();
    for (size_t v = 0; v < count; ++v) {
      *obj_ += "v";
      for (double c : placement.point(&primitive.positions[v * 3])) appendValue(static_cast<float>(c));
      if (!primitive.colors.empty()) {
        for (int i = 0; i < 3; ++i) appendValue(primitive.colors[v * 4 + i]);
      }
      *obj_ += "\n";
    }
    const bool textured = !primitive.texCoords.empty();
    for (size_t v = 0; textured && v < count; ++v) {
      const std::array<float, 2> st =
          transformTexCoord(material.textureTransform, primitive.texCoords[v * 2], primitive.texCoords[v * 2 + 1]);
      *obj_ += "vt";
      appendValue(st[0]);
      appendValue(st[1]);
      *obj_ += "\n";
    }
    const bool withNormals = !primitive.normals.empty() && primitive.mode == PrimitiveMode::kTriangles;
    for (size_t v = 0; withNormals && v < count; ++v) {
      *obj_ += "vn";
      for (float c : placement.normal(&primitive.normals[v * 3])) appendValue(c);
      *obj_ += "\n";
    }
    *obj_ += "usemtl " + materialName(primitive.material) + "\n";
    switch (primitive.mode) {
      case PrimitiveMode::kTriangles:
        for (size_t t = 0; t < primitive.indices.size() / 3; ++t) {
          *obj_ += "f";
          for (uint32_t corner : triangleCorners(primitive, t, placement.mirrored())) {
            appendCorner(corner, textured, withNormals);
          }
          *obj_ += "\n";
        }
        break;
      case PrimitiveMode::kLines:
        for (size_t s = 0; s < primitive.indices.size(); s += 2) {
          *obj_ += "l";
          appendCorner(primitive.indices[s], textured, false);
          appendCorner(primitive.indices[s + 1], textured, false);
          *obj_ += "\n";
        }
        break;
      case PrimitiveMode::kPoints:
        for (uint32_t point : primitive.indices) {
          *obj_ += "p";
          appendCorner(point, false, false);
          *obj_ += "\n";
        }
        break;
    }
    positions_ += count;
    if (textured) texCoords_ += count;
    if (withNormals) normals_ += count;
  }

  void appendValue(float value) {
    *obj_ += ' ';
    appendNumber(*obj_, value);
  }

  // " v", " v/vt", " v//vn" or " v/vt/vn", numbered from 1 across the file.
  void appendCorner(uint32_t index, bool textured, bool withNormals) {
    *obj_ += ' ';
    appendInteger(*obj_, positions_ + index + 1);
    if (!textured && !withNormals) return;
    *obj_ += '/';
    if (textured) appendInteger(*obj_, texCoords_ + index + 1);
    if (withNormals) {
      *obj_ += '/';
      appendInteger(*obj_, normals_ + index + 1);
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
  const bool toStandardOutput_;
  std::vector<Planned> planned_;
  std::string* obj_ = nullptr;  // while streaming
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
  ObjBuilder::build(std::make_shared<ObjBuilder>(scene, path, messages), files);
  return true;
}

}  // namespace lumeric
