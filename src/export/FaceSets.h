// The shapes built from the current coordinates: IndexedFaceSet (faces of
// any size, concave ones tessellated when ShapeHints does not promise
// convex faces), IndexedLineSet and PointSet.
#ifndef LUMERIC_EXPORT_FACESETS_H
#define LUMERIC_EXPORT_FACESETS_H

#include "export/ExportScene.h"
#include "export/ShapeContext.h"

namespace lumeric {

class QvIndexedFaceSet;
class QvIndexedLineSet;
class QvPointSet;

// The messages counted for bad input.
constexpr const char kIndexOutOfRange[] = "Face or line with a coordinate index out of range skipped";
constexpr const char kDegenerateFace[] = "Face with fewer than three distinct points skipped";

ExportMesh indexedFaceSetMesh(QvIndexedFaceSet& node, ShapeContext& context);
ExportMesh indexedLineSetMesh(QvIndexedLineSet& node, ShapeContext& context);
ExportMesh pointSetMesh(QvPointSet& node, ShapeContext& context);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FACESETS_H
