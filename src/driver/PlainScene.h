// Reading a plain VRML 1.0 text (the translator's own output, or a file it
// names) into a node tree for a pass that is not a translation: the
// exporter's.  The reading posts nothing; the caller decides what a scene
// that cannot be read means.
#ifndef LUMERIC_DRIVER_PLAINSCENE_H
#define LUMERIC_DRIVER_PLAINSCENE_H

#include <cstdio>
#include <functional>

#include "core/RunState.h"

namespace lumeric {

class QvNode;

// Reads `file` (named `name` for positions) as plain VRML 1.0 in a run of
// its own (extensions off, nothing posted), with `limits` as the run's
// limits and, when they confine, `confinedTo` as the directory allowed.
// Hands the root to `use` (not called when nothing could be read), then
// resets the run: every node, term and atom dies with it.  Returns whether
// the whole file was read without error.
bool readPlainScene(FILE* file, const char* name, const RunLimits& limits, const char* confinedTo,
                    const std::function<void(QvNode* root)>& use);

// Within the run of readPlainScene: reads another file's root node as
// plain VRML 1.0 with a DEF table of its own.  The node lives until the
// run ends (the run keeps a reference); null when nothing could be read.
QvNode* readPlainNodeInRun(FILE* file, const char* name);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_PLAINSCENE_H
