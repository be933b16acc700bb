// Texture2 as an ExportTexture: a PNG or JPEG file kept byte for byte,
// another image format stb_image reads converted to PNG, an inline image
// (SFImage) encoded as PNG.  An image that cannot be read is left out
// with a warning; the shape is then exported without texture.
#ifndef LUMERIC_EXPORT_TEXTURES_H
#define LUMERIC_EXPORT_TEXTURES_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "export/ExportMessages.h"
#include "export/ExportScene.h"

namespace lumeric {

class QvTexture2;

// PNG bytes of an image of `components` (1 grey, 2 grey and alpha, 3 RGB,
// 4 RGBA) bytes per pixel whose rows run from the bottom up, as SFImage
// stores them; empty when the image is empty or malformed.
std::vector<unsigned char> encodePng(int width, int height, int components, const std::vector<uint8_t>& pixels);

class TextureLoader {
 public:
  TextureLoader(ExportScene& scene, ExportMessages& messages) : scene_(scene), messages_(messages) {}

  // The scene's texture for `node`, its file name taken relative to
  // `directory` (empty or ending in "/"), or -1 when the node turns
  // texturing off or its image cannot be read.
  int textureOf(QvTexture2& node, const std::string& directory);

 private:
  int fileTexture(const std::string& path, const std::string& name, bool repeatS, bool repeatT);
  int add(ExportTexture texture);

  ExportScene& scene_;
  ExportMessages& messages_;
  std::map<const QvTexture2*, int> byNode_;
  std::map<std::string, std::vector<unsigned char>> files_;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_TEXTURES_H
