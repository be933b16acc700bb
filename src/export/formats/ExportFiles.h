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

// The whole content of `file`, streamed or not (for tests and small
// files).
std::string contentOf(const ExportedFile& file);

// Text written to a stream in pieces of about a megabyte: a writer appends
// to `text()` and calls `spill()` now and then.
class SpillingText {
 public:
  explicit SpillingText(FILE* stream) : stream_(stream) {}
  std::string& text() { return text_; }
  // Writes the text out once it holds a piece (or, with `all`, whatever it
  // holds).  Returns 0 or the error number of the first failed write;
  // after a failure nothing more is written.
  int spill(bool all = false);

 private:
  static constexpr size_t kPiece = 1 << 20;
  FILE* stream_;
  std::string text_;
  int error_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FORMATS_EXPORTFILES_H
