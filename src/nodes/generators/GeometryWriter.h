// The text of the standard nodes that the geometry generators emit when they
// are written: a scoped Separator and one writer each for Translation,
// Sphere, Transform, Cylinder, Coordinate3 and IndexedFaceSet.
//
// Every writer writes through the run's SceneWriter at its indentation,
// starts its node with "DEF name Type {" (or "Type {" when the name is null
// or empty), writes its lines one level deeper, and ends with the level
// restored and the line "}" (no empty line after it, unlike the frames of
// nodes read from the scene).  Numbers are rounded to the current PRECISION
// step; a number that is infinite or NaN is reported (finiteAt) as "Number is not finite" at the node being visited (the
// generator) and written as 0.
#ifndef LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H
#define LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H

#include "nodes/generators/WallMesh.h"
#include "writer/SceneWriter.h"

namespace lumeric {

// Opens a Separator (named `name` when that is not empty) on construction
// and closes it on destruction; what is written in between sits one level
// deeper.
class SeparatorBlock {
 public:
  SeparatorBlock(SceneWriter& out, const char* name);
  ~SeparatorBlock();
  SeparatorBlock(const SeparatorBlock&) = delete;
  SeparatorBlock& operator=(const SeparatorBlock&) = delete;

 private:
  SceneWriter& out_;
};

// "Translation {" (never named) with "translation x y z".
void writeTranslation(SceneWriter& out, double x, double y, double z);
// "radius r".
void writeSphere(SceneWriter& out, const char* name, double radius);
// One line for each array that is not null, in this order: translation
// (3 numbers), rotation (4), scaleFactor (3), scaleOrientation (4), center
// (3).  The two orientations have two blanks before their angle.
void writeTransform(SceneWriter& out, const char* name, const double* translation, const double* rotation,
                    const double* scaleFactor, const double* scaleOrientation, const double* center);
// "parts p" only when `parts` is not empty, then "radius r" and "height h".
void writeCylinder(SceneWriter& out, const char* name, const char* parts, double radius, double height);
// The points in list order on a "point [" list; gives each point its
// output index (0, 1, ...), which writeIndexedFaceSet then refers to.
void writeCoordinate3(SceneWriter& out, const char* name, WallMesh::PointList& points);
// The faces in list order, each as the output indices of its corners from
// the last to the first and -1, then the three index fields at -1.  The
// points must have been numbered by writeCoordinate3.
void writeIndexedFaceSet(SceneWriter& out, const char* name, const WallMesh::FaceList& faces);

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H
