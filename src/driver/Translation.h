// One run of the translator: open the input, read the scene, expand and
// evaluate it, write (or only check) it, and free everything the run made.
// ParseVRMLLumeric and CheckSyntax are thin wrappers around these.
#ifndef LUMERIC_DRIVER_TRANSLATION_H
#define LUMERIC_DRIVER_TRANSLATION_H

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "core/FileAccess.h"
#include "driver/FieldOverrides.h"

#include "lumeric/lumeric.h"

namespace lumeric {

// Where the result of a translation goes when the caller decides it rather
// than the scene (the command line's -o).  With `stream` set the result is
// written there and the stream is flushed, not closed; with `path` set that
// file is opened instead of "output.wrl".  Either way OUTPUT_TO statements
// open nothing.
struct OutputOverride {
  FILE* stream = nullptr;
  const char* path = nullptr;
};

// What the command line adds to a run; the exported entry points use none
// of it.
struct RunAdditions {
  // Applied after the scene is read and before it is evaluated.  When one
  // fails, `overrideError` says why and the run ends there: nothing is
  // evaluated or written.
  std::vector<FieldOverride> overrides;
  std::string overrideError;
  // Receives the name of every file INCLUDE read, in the order read, as
  // opened.
  std::vector<std::string> includedFiles;
  // Where INCLUDE looks, in order, for a relative name found neither as
  // written nor beside the including file (the command line's -I).
  std::vector<std::string> includeDirectories;
  // When set, the scene is read from this stream (not closed), and the
  // input path only names it: in messages, and as the place beside which
  // INCLUDE looks.
  FILE* inputStream = nullptr;
  // Receives every file the run read (the input, every INCLUDE).
  std::vector<FileIdentity> filesRead;
  // Receives the number of nodes the translation wrote (0 when it wrote
  // nothing).
  long nodesWritten = 0;
};

int translateScene(const char* inputPath, CReportErrorView* view, const char* directory, char* outputNameOut,
                   const OutputOverride* output, RunAdditions* additions = nullptr);
int checkScene(const char* inputPath, CReportErrorView* view, const char* directory, const char* fileType,
               RunAdditions* additions = nullptr);

class QvNode;
// Reads and evaluates the scene in the extended language as checkScene
// does, then hands its root to `inspect` before the run ends; writes
// nothing.  Results as checkScene.
int inspectScene(const char* inputPath, CReportErrorView* view, const char* directory, RunAdditions* additions,
                 const std::function<void(QvNode* root)>& inspect);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_TRANSLATION_H
