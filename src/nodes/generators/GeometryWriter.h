// The text of the standard nodes that the geometry generators emit when they
// are written: a scoped Separator and one writer each for Translation,
// Sphere, Transform, Cylinder, Coordinate3 and IndexedFaceSet.
//
// Every writer writes through the run's SceneWriter at its indentation,
// starts its node with "DEF name Type {" (or "Type {" when the name is null
// or empty), writes its lines one level deeper, and ends with the level
// restored and the line "}" (no empty line after it, unlike the frames of
// nodes read from the scene).  Numbers are rounded to the current PRECISION
// step; a number that is infinite or NaN is reported as "Number is not
// finite" at the generator being written (through finiteAt) and written
// as 0.
#ifndef LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H
#define LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H

#include "nodes/generators/WallMesh.h"
#include "writer/SceneWriter.h"

namespace lumeric {

class QvNode;

// Where a generator's nodes go: the run's writer, and the generator, at
// which a number that is not finite is reported.
struct GeometryOutput {
  SceneWriter& out;
  QvNode* generator;
};

// The frame of one generated node of class `type` (named `name` when that
// is not empty): opened on construction, closed on destruction with no empty
// line after the brace; what is written in between sits one level deeper.
class GeneratedNodeFrame {
 public:
  GeneratedNodeFrame(SceneWriter& out, const char* name, const char* type) : out_(out) {
    out_.openNode(name, type);
  }
  ~GeneratedNodeFrame() { out_.closeNode(SceneWriter::After::kNothing); }
  GeneratedNodeFrame(const GeneratedNodeFrame&) = delete;
  GeneratedNodeFrame& operator=(const GeneratedNodeFrame&) = delete;

 private:
  SceneWriter& out_;
};

// A Separator frame, which a generator's other nodes are written inside.
class SeparatorBlock : public GeneratedNodeFrame {
 public:
  SeparatorBlock(SceneWriter& out, const char* name) : GeneratedNodeFrame(out, name, "Separator") {}
};

// "Translation {" (never named) with "translation x y z".
void writeTranslation(const GeometryOutput& to, double x, double y, double z);
// "radius r".
void writeSphere(const GeometryOutput& to, const char* name, double radius);
// One line for each array that is not null, in this order: translation
// (3 numbers), rotation (4), scaleFactor (3), scaleOrientation (4), center
// (3).  The two orientations have two blanks before their angle.
void writeTransform(const GeometryOutput& to, const char* name, const double* translation, const double* rotation,
                    const double* scaleFactor, const double* scaleOrientation, const double* center);
// "parts p" only when `parts` is not empty, then "radius r" and "height h".
void writeCylinder(const GeometryOutput& to, const char* name, const char* parts, double radius, double height);
// The points in list order on a "point [" list; gives each point its
// output index (0, 1, ...), which writeIndexedFaceSet then refers to.
void writeCoordinate3(const GeometryOutput& to, const char* name, WallMesh::PointList& points);
// The faces in list order, each as the output indices of its corners from
// the last to the first and -1, then the three index fields at -1.  The
// points must have been numbered by writeCoordinate3.
void writeIndexedFaceSet(const GeometryOutput& to, const char* name, const WallMesh::FaceList& faces);

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_GEOMETRYWRITER_H
