#include "export/formats/FormatWriters.h"

namespace lumeric {

bool writeExport(ExportFormat format, const ExportScene& scene, const std::string& path, ExportedFiles& files,
                 ExportMessages& messages) {
  switch (format) {
    case ExportFormat::kGlb:
      return writeGlb(scene, path, files, messages);
    case ExportFormat::kGltf:
      return writeGltf(scene, path, files, messages);
    case ExportFormat::kStl:
      return writeStl(scene, path, files, messages);
    case ExportFormat::kObj:
      return writeObj(scene, path, files, messages);
    case ExportFormat::kX3d:
      return writeX3d(scene, path, files, messages);
    case ExportFormat::kWrl:
      break;
  }
  messages.error("VRML 1.0 is written by the translator, not exported");
  return false;
}

}  // namespace lumeric
