#include "export/formats/ExportText.h"

#include <charconv>
#include <cmath>

#include "core/FloatText.h"

#ifndef LUMERIC_VERSION
#define LUMERIC_VERSION "unknown"
#endif

namespace lumeric {

namespace {

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

template <typename Number>
void appendShortest(std::string& out, Number value) {
  if (!std::isfinite(value)) value = 0;
  if (value == 0) value = 0;  // no "-0"
  char buffer[32];
  out.append(buffer, static_cast<size_t>(formatShortest(buffer, sizeof buffer, value)));
}

}  // namespace

std::string generatorName() { return std::string("lumeric ") + LUMERIC_VERSION; }

void appendNumber(std::string& out, double value) { appendShortest(out, value); }
void appendNumber(std::string& out, float value) { appendShortest(out, value); }

void appendInteger(std::string& out, size_t value) {
  char buffer[24];
  const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
  out.append(buffer, result.ptr);
}

std::string UniqueNames::make(const std::string& name, const std::string& fallback) {
  std::string safe;
  for (char c : name) safe += isNameCharacter(c) ? c : '_';
  bool usable = false;
  for (char c : safe) usable = usable || c != '_';
  if (!usable) safe = fallback.empty() ? "_" : fallback;
  if (safe[0] == '-' || (safe[0] >= '0' && safe[0] <= '9')) safe = "_" + safe;
  std::string unique = safe;
  int& next = next_.emplace(safe, 2).first->second;
  while (taken_.count(unique) != 0) unique = safe + "_" + std::to_string(next++);
  taken_.insert(unique);
  return unique;
}

std::string baseName(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string companionPath(const std::string& path, const std::string& suffix) {
  const size_t slash = path.find_last_of('/');
  const std::string directory = slash == std::string::npos ? "" : path.substr(0, slash + 1);
  std::string stem = baseName(path);
  const size_t dot = stem.find_last_of('.');
  if (dot != std::string::npos && dot > 0) stem.erase(dot);
  for (char& c : stem) {
    if (!isNameCharacter(c) && c != '.') c = '_';
  }
  return directory + stem + suffix;
}

std::string imageExtension(const ExportTexture& texture) {
  return texture.mimeType == "image/jpeg" ? "jpg" : "png";
}

std::string TextureFiles::nameOf(int index) {
  if (index < 0 || static_cast<size_t>(index) >= scene_.textures.size()) return "";
  auto found = names_.find(index);
  if (found != names_.end()) return found->second;
  const ExportTexture& texture = scene_.textures[index];
  std::string& name = names_[index];
  if (texture.bytes.empty()) return name;
  const std::string file =
      companionPath(mainPath_, "-texture" + std::to_string(images_.size() + 1) + "." + imageExtension(texture));
  images_.push_back(ExportedFile{file, std::string(texture.bytes.begin(), texture.bytes.end())});
  return name = baseName(file);
}

void TextureFiles::appendTo(ExportedFiles& files) {
  for (ExportedFile& image : images_) files.push_back(std::move(image));
  images_.clear();
}

}  // namespace lumeric
