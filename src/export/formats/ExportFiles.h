// Writing the files of an export to disk, or its main file to a stream.
#ifndef LUMERIC_EXPORT_FORMATS_EXPORTFILES_H
#define LUMERIC_EXPORT_FORMATS_EXPORTFILES_H

#include <cstdio>

#include "export/ExportFormat.h"
#include "export/ExportMessages.h"

namespace lumeric {

// Writes every file of `files`, each whole or not at all: all are written
// to temporary files beside their targets first, and only when every one
// was written do they replace their targets.  A failure posts an error
// ("Could not open NAME for writing - Error # N", "Could not write NAME -
// Error # N") and returns false; targets not yet replaced keep what they
// held.
bool writeExportedFiles(const ExportedFiles& files, ExportMessages& messages);

// Writes the main file of `files` to `stream` (standard output) and
// flushes it; companions are not written.  Returns false after posting
// "Could not write standard output - Error # N".
bool writeExportToStream(const ExportedFiles& files, FILE* stream, ExportMessages& messages);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_EXPORTFILES_H
