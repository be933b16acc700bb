// Texts the text formats (OBJ, X3D) share: numbers, names, the names of
// companion files, and the generator's name.
#ifndef LUMERIC_EXPORT_FORMATS_EXPORTTEXT_H
#define LUMERIC_EXPORT_FORMATS_EXPORTTEXT_H

#include <map>
#include <set>
#include <string>

#include "export/ExportFormat.h"
#include "export/ExportScene.h"

namespace lumeric {

// "lumeric VERSION".
std::string generatorName();

// Appends the shortest text that reads back as `value`; a value that is
// not finite is written as 0.
void appendNumber(std::string& out, double value);
void appendNumber(std::string& out, float value);
void appendInteger(std::string& out, size_t value);

// Names unique within one file, made of letters, digits, '_' and '-' and
// never starting with a digit or '-' (valid as an XML name and as an OBJ or
// MTL name).  An empty or unusable name becomes `fallback`; a name taken
// gets "_2", "_3" ... appended.
class UniqueNames {
 public:
  std::string make(const std::string& name, const std::string& fallback);

 private:
  std::set<std::string> taken_;
  // The next number to try after each name, so that many nodes of one
  // name take linear time.
  std::map<std::string, int> next_;
};

// A companion of the main file `path`: the same directory and base name
// (characters other than letters, digits, '.', '_' and '-' replaced by '_'),
// then `suffix` (".mtl", "-texture1.png").
std::string companionPath(const std::string& path, const std::string& suffix);
// The file name of `path` without its directory.
std::string baseName(const std::string& path);
// The extension an image of this MIME type is written with: "png", "jpg".
std::string imageExtension(const ExportTexture& texture);

// The textures a text format names by file: each one used is written once
// beside the main file, as NAME-textureN.png (or .jpg).
class TextureFiles {
 public:
  TextureFiles(const ExportScene& scene, const std::string& mainPath) : scene_(scene), mainPath_(mainPath) {}
  // The file name (without directory) of texture `index`, empty when there
  // is none or it has no image.
  std::string nameOf(int index);
  // Adds the files of the textures named so far.
  void appendTo(ExportedFiles& files);

 private:
  const ExportScene& scene_;
  const std::string mainPath_;
  std::map<int, std::string> names_;
  ExportedFiles images_;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_EXPORTTEXT_H
