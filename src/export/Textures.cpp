#include "export/Textures.h"

#include <cstdio>
#include <cstring>

#include <stb/stb_image.h>
#include <stb/stb_image_write.h>

#include "core/FileAccess.h"
#include "export/FieldValues.h"
#include "nodes/QvTexture2.h"

namespace lumeric {

namespace {

void appendBytes(void* context, void* data, int size) {
  auto* out = static_cast<std::vector<unsigned char>*>(context);
  const auto* bytes = static_cast<const unsigned char*>(data);
  out->insert(out->end(), bytes, bytes + size);
}

bool startsWith(const std::vector<unsigned char>& bytes, const char* magic, size_t length) {
  return bytes.size() >= length && std::memcmp(bytes.data(), magic, length) == 0;
}

bool readWholeFile(const std::string& path, std::vector<unsigned char>& bytes) {
  int errorNumber = 0;
  FILE* file = openForReading(path.c_str(), errorNumber);
  if (file == nullptr) return false;
  unsigned char buffer[65536];
  size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) bytes.insert(bytes.end(), buffer, buffer + got);
  const bool ok = !std::ferror(file);
  std::fclose(file);
  return ok;
}

std::string baseName(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

std::vector<unsigned char> encodePng(int width, int height, int components, const std::vector<uint8_t>& pixels) {
  std::vector<unsigned char> png;
  if (width <= 0 || height <= 0 || components < 1 || components > 4) return png;
  const size_t stride = static_cast<size_t>(width) * static_cast<size_t>(components);
  if (pixels.size() < stride * static_cast<size_t>(height)) return png;
  // PNG rows run from the top down.
  std::vector<uint8_t> flipped(stride * static_cast<size_t>(height));
  for (int row = 0; row < height; ++row) {
    std::memcpy(&flipped[static_cast<size_t>(row) * stride], &pixels[static_cast<size_t>(height - 1 - row) * stride],
                stride);
  }
  if (stbi_write_png_to_func(appendBytes, &png, width, height, components, flipped.data(), static_cast<int>(stride)) ==
      0) {
    png.clear();
  }
  return png;
}

int TextureLoader::add(ExportTexture texture) {
  scene_.textures.push_back(std::move(texture));
  return static_cast<int>(scene_.textures.size()) - 1;
}

int TextureLoader::textureOf(QvTexture2& node, const std::string& directory) {
  auto known = byNode_.find(&node);
  if (known != byNode_.end()) return known->second;
  const bool repeatS = node.wrapS.value == 0, repeatT = node.wrapT.value == 0;
  const char* defName = node.hasName() ? node.getName() : nullptr;
  int index = -1;
  if (node.image.width > 0 && node.image.height > 0) {
    ExportTexture texture;
    texture.name = defName != nullptr ? defName : "image";
    texture.bytes = encodePng(node.image.width, node.image.height, node.image.numComponents, node.image.bytes);
    texture.mimeType = "image/png";
    texture.repeatS = repeatS;
    texture.repeatT = repeatT;
    if (texture.bytes.empty()) {
      messages_.warning("Texture2 image that cannot be encoded left out");
    } else {
      index = add(std::move(texture));
    }
  } else {
    const std::string file = textIn(node.filename);
    if (!file.empty()) {
      const std::string path = file[0] == '/' ? file : directory + file;
      index = fileTexture(path, defName != nullptr ? defName : baseName(file), repeatS, repeatT);
    }
  }
  byNode_[&node] = index;
  return index;
}

int TextureLoader::fileTexture(const std::string& path, const std::string& name, bool repeatS, bool repeatT) {
  if (const char* refusal = confinementRefusal(path.c_str(), false)) {
    messages_.countWarning("Texture " + path + " left out: " + refusal);
    return -1;
  }
  auto cached = files_.find(path);
  if (cached == files_.end()) {
    std::vector<unsigned char> bytes;
    if (readWholeFile(path, bytes)) {
      scene_.filesRead.push_back(path);
    } else {
      bytes.clear();
    }
    cached = files_.emplace(path, std::move(bytes)).first;
  }
  ExportTexture texture;
  texture.name = name;
  texture.repeatS = repeatS;
  texture.repeatT = repeatT;
  const std::vector<unsigned char>& bytes = cached->second;
  if (startsWith(bytes, "\x89PNG\r\n\x1a\n", 8)) {
    texture.bytes = bytes;
    texture.mimeType = "image/png";
  } else if (startsWith(bytes, "\xff\xd8\xff", 3)) {
    texture.bytes = bytes;
    texture.mimeType = "image/jpeg";
  } else if (!bytes.empty() && bytes.size() < 0x7fffffff) {
    int width = 0, height = 0, components = 0;
    unsigned char* pixels =
        stbi_load_from_memory(bytes.data(), static_cast<int>(bytes.size()), &width, &height, &components, 0);
    if (pixels != nullptr) {
      // stb_image gives rows from the top down; encodePng expects them from
      // the bottom up, so they are handed over reversed.
      const size_t stride = static_cast<size_t>(width) * static_cast<size_t>(components);
      std::vector<uint8_t> rows(stride * static_cast<size_t>(height));
      for (int row = 0; row < height; ++row) {
        std::memcpy(&rows[static_cast<size_t>(row) * stride], pixels + static_cast<size_t>(height - 1 - row) * stride,
                    stride);
      }
      stbi_image_free(pixels);
      texture.bytes = encodePng(width, height, components, rows);
      texture.mimeType = "image/png";
    }
  }
  if (texture.bytes.empty()) {
    messages_.countWarning("Cannot read texture image " + path + "; left out");
    return -1;
  }
  return add(std::move(texture));
}

}  // namespace lumeric
