// What every shape's export needs: the traversal state, the scene being
// filled, its materials and the exporter's messages.
#ifndef LUMERIC_EXPORT_SHAPECONTEXT_H
#define LUMERIC_EXPORT_SHAPECONTEXT_H

#include "export/ExportMessages.h"
#include "export/ExportScene.h"
#include "export/MaterialBinding.h"
#include "export/TraversalState.h"

namespace lumeric {

struct ShapeContext {
  const TraversalState& state;
  ExportScene& scene;
  MaterialTable& materials;
  ExportMessages& messages;
  // Segments around a curved primitive.
  int segments;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_SHAPECONTEXT_H
