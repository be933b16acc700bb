// The wiring of the layers: what the lower layers call in the higher ones,
// installed once before the first run.
#ifndef LUMERIC_DRIVER_LIBRARYSETUP_H
#define LUMERIC_DRIVER_LIBRARYSETUP_H

namespace lumeric {

// Installs the node and field factories and the name evaluation as the
// scene's operations, and the end-of-run release of the visit stack, the
// class field tables and the terms into theRun.  Calling it again changes
// nothing.
void installLibraryOperations();

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_LIBRARYSETUP_H
