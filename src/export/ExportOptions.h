// What the caller of an export chooses about the scene it builds.
#ifndef LUMERIC_EXPORT_EXPORTOPTIONS_H
#define LUMERIC_EXPORT_EXPORTOPTIONS_H

namespace lumeric {

struct ExportOptions {
  // Segments around a curved primitive; 0: as the scene's Complexity says.
  int tessellation = 0;
  // Nodes the traversal may visit (each USE visits its subtree again);
  // beyond it the rest of the scene is left out with a warning.
  long maxVisits = 10000000;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_EXPORTOPTIONS_H
