// One export from a scene file to its output, as the command line and the
// exported entry point run it.
#ifndef LUMERIC_DRIVER_EXPORTRUN_H
#define LUMERIC_DRIVER_EXPORTRUN_H

#include <cstdio>
#include <string>

#include "export/ExportFormat.h"
#include "driver/ExportPipeline.h"
#include "lumeric/lumeric.h"

namespace lumeric {

struct ExportRequest {
  const char* inputPath = nullptr;
  const char* directory = nullptr;  // tried before the input when it cannot be opened, as the translator does
  // The main output file; with `stream` set, only its name for messages
  // and formats ("-"), and the main file goes to `stream` alone.
  std::string outputPath;
  FILE* stream = nullptr;
  ExportFormat format = ExportFormat::kGlb;
  ExportOptions options;
  RunAdditions* additions = nullptr;
};

// Builds the scene and writes it (kWrl: translates it to `outputPath` or
// `stream`).  Posts every message to `view` (may be null).  Returns the
// number of errors posted by the translation and the export; with
// additions whose overrides failed, nothing is written.
int runExport(const ExportRequest& request, CReportErrorView* view);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_EXPORTRUN_H
