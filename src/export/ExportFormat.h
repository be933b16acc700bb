// The output formats and the files an export produces.
#ifndef LUMERIC_EXPORT_EXPORTFORMAT_H
#define LUMERIC_EXPORT_EXPORTFORMAT_H

#include <string>
#include <vector>

namespace lumeric {

enum class ExportFormat { kWrl, kGlb, kGltf, kStl, kObj, kX3d };

// "wrl", "glb", "gltf", "stl", "obj", "x3d" (any case); false for anything else.
bool exportFormatByName(const std::string& name, ExportFormat& format);
// The format a file name's extension names; false when it names none.
bool exportFormatOfPath(const std::string& path, ExportFormat& format);

// One file of an export: the main file first, companions (an OBJ's
// material library, a glTF's buffer) after it.  `path` of a companion is
// the main path with its own extension.
struct ExportedFile {
  std::string path;
  std::string bytes;
};
using ExportedFiles = std::vector<ExportedFile>;

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_EXPORTFORMAT_H
