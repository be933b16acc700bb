// From a scene file to the scene an export writes: the scene is translated
// as usual into memory, the plain VRML 1.0 text is read back with the
// library's own reader, and a traversal of that plain tree applies every
// rule that decides what a viewer shows.  Compiled into the exporter's
// library only, like the other export files of the driver.
#ifndef LUMERIC_DRIVER_EXPORTPIPELINE_H
#define LUMERIC_DRIVER_EXPORTPIPELINE_H

#include <cstdio>

#include "core/RunState.h"
#include "driver/Translation.h"
#include "export/ExportOptions.h"
#include "export/ExportScene.h"
#include "lumeric/lumeric.h"

namespace lumeric {

// Translates `inputPath` (messages to `view`, `additions` applied as the
// command line gives them) and fills `scene` with what the translation
// shows.  Returns what translateScene returns.
int buildExportScene(const char* inputPath, CReportErrorView* view, const char* directory, RunAdditions* additions,
                     const ExportOptions& options, ExportScene& scene);

// Fills `scene` with what the plain VRML 1.0 text `text` shows, read as if
// it were the file `path` (inlined files and textures are found beside
// it) with the run's limits `limits`.  The reading posts nothing; the
// exporter's own messages go to `view`.
void buildPlainExportScene(FILE* text, const char* path, const RunLimits& limits, CReportErrorView* view,
                           const ExportOptions& options, ExportScene& scene);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_EXPORTPIPELINE_H
