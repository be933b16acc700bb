// The writers of the export formats.  Each reads an ExportScene and fills
// `files` with what it writes, the main file first, for the path `path`
// ("-": standard output, where a format writes no companion file).  Nothing
// is written to disk here; writeExportedFiles (ExportFiles.h) does that.
// Each returns false, with an error posted, when the scene cannot be written
// in its format.  A streamed file (STL, OBJ) reads the scene as it is
// written: the scene must outlive `files`.
#ifndef LUMERIC_EXPORT_FORMATS_FORMATWRITERS_H
#define LUMERIC_EXPORT_FORMATS_FORMATWRITERS_H

#include <string>

#include "export/ExportFormat.h"
#include "export/ExportMessages.h"
#include "export/ExportScene.h"

namespace lumeric {

bool writeGlb(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages);
bool writeGltf(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages);
bool writeStl(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages);
bool writeObj(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages);
bool writeX3d(const ExportScene& scene, const std::string& path, ExportedFiles& files, ExportMessages& messages);

// The writer of `format`.  VRML 1.0 is the translator's own output, not an
// export: kWrl posts an error and returns false.
bool writeExport(ExportFormat format, const ExportScene& scene, const std::string& path, ExportedFiles& files,
                 ExportMessages& messages);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_FORMATWRITERS_H
