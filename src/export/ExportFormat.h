// The output formats and the files an export produces.
#ifndef LUMERIC_EXPORT_EXPORTFORMAT_H
#define LUMERIC_EXPORT_EXPORTFORMAT_H

#include <cstdio>
#include <functional>
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
// A file is either held whole in `bytes` or, when it may be far larger
// than the scene (STL and OBJ place every copy of a mesh in world
// coordinates), written piece by piece by `stream`, which returns 0 or the
// error number of a failed write.
struct ExportedFile {
  std::string path;
  std::string bytes;
  std::function<int(FILE*)> stream = nullptr;
};
using ExportedFiles = std::vector<ExportedFile>;

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_EXPORTFORMAT_H
