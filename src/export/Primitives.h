// The four primitive shapes as triangles: Cube, Sphere, Cone and
// Cylinder with their parts, their normals and VRML 1.0's texture
// coordinates.  Materials bound per part (or per face) go to the parts in
// VRML 1.0's order: a Cube's front, back, left, right, top and bottom
// faces; a Cylinder's sides, top and bottom; a Cone's sides and bottom.
// Other bindings give the whole shape the first material.
#ifndef LUMERIC_EXPORT_PRIMITIVES_H
#define LUMERIC_EXPORT_PRIMITIVES_H

#include "export/ExportScene.h"
#include "export/ShapeContext.h"

namespace lumeric {

class QvCone;
class QvCube;
class QvCylinder;
class QvSphere;

// Segments around a curved primitive: `tessellation` when it is positive
// (at least 3, at most 1024), else 4 + 40 x complexity rounded (24 at the
// default complexity 0.5).  A sphere has half as many bands as segments.
int segmentsFor(float complexity, int tessellation);

ExportMesh cubeMesh(QvCube& node, ShapeContext& context);
ExportMesh sphereMesh(QvSphere& node, ShapeContext& context);
ExportMesh cylinderMesh(QvCylinder& node, ShapeContext& context);
ExportMesh coneMesh(QvCone& node, ShapeContext& context);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_PRIMITIVES_H
