// lumeric: translates scenes written in the extended VRML 1.0 language into
// plain VRML 1.0.  This is the whole public interface of the shared library.
#ifndef LUMERIC_LUMERIC_H
#define LUMERIC_LUMERIC_H

#if defined(LUMERIC_BUILDING_LIBRARY)
#define LUMERIC_EXPORT __attribute__((visibility("default")))
#else
#define LUMERIC_EXPORT
#endif

#ifdef __cplusplus
// The host's error view.  The library calls post() once for every message it
// produces, in the order in which the problems are met, and calls nothing
// else.  `text` is the complete message without a line end and is valid only
// during the call; `flag` is 1 for an error and 0 for a warning or for
// information (PRINT output).  The result is ignored.
class CReportErrorView {
 public:
  virtual int post(const char* text, int flag) = 0;
  virtual ~CReportErrorView() {}
};
#else
typedef struct CReportErrorView CReportErrorView;
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Translates the scene file `inputPath` into plain VRML 1.0.  The result goes
// to the file named by the scene's OUTPUT_TO statement, else to "output.wrl"
// in the current directory; its name is copied into `outputNameOut`, a buffer
// of at least 256 bytes.  When `inputPath` cannot be opened it is tried once
// more as `directory` followed directly by `inputPath` (`directory` may be
// null).  Messages go to `view`, which may be null.
// Returns 1 when the file was opened but held no root node, else 0.
LUMERIC_EXPORT int ParseVRMLLumeric(char* inputPath, CReportErrorView* view,
                                    char* directory, char* outputNameOut);

// Reads and expands the scene like ParseVRMLLumeric but writes no result.
// `fileType` "vlm" (in any case) enables the extended language; anything
// else, null included, reads plain VRML 1.0.  Results as ParseVRMLLumeric.
LUMERIC_EXPORT int CheckSyntax(char* inputPath, CReportErrorView* view,
                               char* directory, char* fileType);

// Warning switches read by the library: 2 enables the unknown-node warning,
// 4 the duplicate-name warning.
LUMERIC_EXPORT extern unsigned long gWarn;

#ifdef __cplusplus
}
#endif

#endif  // LUMERIC_LUMERIC_H
