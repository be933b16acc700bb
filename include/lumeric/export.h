// lumeric's exporter: a scene file, extended or plain VRML 1.0, written as
// glTF 2.0 (.glb, .gltf), STL, OBJ or X3D.  This is the whole public
// interface of liblumeric_export.so; it reports through the same view as
// the translator (lumeric/lumeric.h).
#ifndef LUMERIC_EXPORT_H
#define LUMERIC_EXPORT_H

#include "lumeric/lumeric.h"

#ifdef __cplusplus
extern "C" {
#endif

// Translates the scene file `inputPath` as ParseVRMLLumeric does and writes
// what it shows to `outputPath` in `format`: "glb", "gltf", "stl", "obj",
// "x3d", or "wrl" for the plain VRML 1.0 text, in any case; null or empty
// takes the format from the extension of `outputPath`.  OUTPUT_TO
// statements open nothing.  An OBJ's material library and the textures of
// OBJ and X3D are written beside `outputPath`.  Every file is written whole
// or not at all, and none replaces a file the run reads (the input, an
// INCLUDE): the call then posts "Refusing to overwrite FILE, which this run
// reads" and writes nothing.  A scene with errors exports what was
// translated; nothing is written when the input cannot be opened.  Messages
// go to `view`, which may be null.
// Returns 0 when no error was posted, else 1.
LUMERIC_EXPORT int ExportVRMLLumeric(const char* inputPath, const char* outputPath, const char* format,
                                     CReportErrorView* view);

#ifdef __cplusplus
}
#endif

#endif  // LUMERIC_EXPORT_H
