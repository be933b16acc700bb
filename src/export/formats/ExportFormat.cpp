#include "export/ExportFormat.h"

#include <strings.h>

namespace lumeric {

namespace {

struct FormatName {
  const char* name;
  ExportFormat format;
};

constexpr FormatName kFormatNames[] = {
    {"wrl", ExportFormat::kWrl}, {"glb", ExportFormat::kGlb}, {"gltf", ExportFormat::kGltf},
    {"stl", ExportFormat::kStl}, {"obj", ExportFormat::kObj}, {"x3d", ExportFormat::kX3d},
};

}  // namespace

bool exportFormatByName(const std::string& name, ExportFormat& format) {
  for (const FormatName& entry : kFormatNames) {
    if (strcasecmp(name.c_str(), entry.name) == 0) {
      format = entry.format;
      return true;
    }
  }
  return false;
}

bool exportFormatOfPath(const std::string& path, ExportFormat& format) {
  const size_t slash = path.find_last_of('/');
  const size_t dot = path.find_last_of('.');
  // A dot that starts the file's name (".glb") makes no extension.
  const size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
  if (dot == std::string::npos || dot <= nameStart) return false;
  return exportFormatByName(path.substr(dot + 1), format);
}

}  // namespace lumeric
