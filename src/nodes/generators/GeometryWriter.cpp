#include "nodes/generators/GeometryWriter.h"

#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The rounded number, preceded by `before`; one that is not finite is
// reported at the generator being written and written as 0.
void writeNumber(const GeometryOutput& to, const char* before, double v) {
  to.out.text(before).rounded(finiteAt(v, to.generator));
}

// "name a b c" or, with four numbers, "name a b c  angle"; then a newline.
void writeVectorLine(const GeometryOutput& to, const char* name, const double* v, int count) {
  to.out.indentation().text(name);
  for (int k = 0; k < count; ++k) writeNumber(to, k == 3 ? "  " : " ", v[k]);
  to.out.character('\n');
}

}  // namespace

void writeTranslation(const GeometryOutput& to, double x, double y, double z) {
  GeneratedNodeFrame node(to.out, nullptr, "Translation");
  const double v[3] = {x, y, z};
  writeVectorLine(to, "translation", v, 3);
}

void writeSphere(const GeometryOutput& to, const char* name, double radius) {
  GeneratedNodeFrame node(to.out, name, "Sphere");
  writeVectorLine(to, "radius", &radius, 1);
}

void writeTransform(const GeometryOutput& to, const char* name, const double* translation, const double* rotation,
                    const double* scaleFactor, const double* scaleOrientation, const double* center) {
  GeneratedNodeFrame node(to.out, name, "Transform");
  if (translation != nullptr) writeVectorLine(to, "translation", translation, 3);
  if (rotation != nullptr) writeVectorLine(to, "rotation", rotation, 4);
  if (scaleFactor != nullptr) writeVectorLine(to, "scaleFactor", scaleFactor, 3);
  if (scaleOrientation != nullptr) writeVectorLine(to, "scaleOrientation", scaleOrientation, 4);
  if (center != nullptr) writeVectorLine(to, "center", center, 3);
}

void writeCylinder(const GeometryOutput& to, const char* name, const char* parts, double radius, double height) {
  SceneWriter& out = to.out;
  GeneratedNodeFrame node(out, name, "Cylinder");
  if (parts != nullptr && parts[0] != '\0') out.line("parts %s\n", parts);
  writeVectorLine(to, "radius", &radius, 1);
  writeVectorLine(to, "height", &height, 1);
}

void writeCoordinate3(const GeometryOutput& to, const char* name, WallMesh::PointList& points) {
  SceneWriter& out = to.out;
  GeneratedNodeFrame node(out, name, "Coordinate3");
  if (points.empty()) {
    out.line("point []\n");
    return;
  }
  // The first point follows the bracket on its line; the others stand one
  // level deeper, one per line.
  out.line("point [");
  SceneWriter::Deeper deeper(out);
  int32_t index = 0;
  for (WallPoint& point : points) {
    if (index > 0) out.indentation();
    point.outputIndex = index++;
    writeNumber(to, "", point.x);
    writeNumber(to, " ", point.y);
    writeNumber(to, " ", point.z);
    out.text(static_cast<size_t>(index) < points.size() ? ",\n" : " ]\n");
  }
}

void writeIndexedFaceSet(const GeometryOutput& to, const char* name, const WallMesh::FaceList& faces) {
  SceneWriter& out = to.out;
  GeneratedNodeFrame node(out, name, "IndexedFaceSet");
  out.line("coordIndex [");
  if (faces.empty()) {
    out.text(" ]\n");
    return;
  }
  {
    SceneWriter::Deeper deeper(out);
    for (size_t i = 0; i < faces.size(); ++i) {
      if (i > 0) out.indentation();
      // Corners from the last to the first, the reverse of the face's order.
      for (int k = 3; k >= 0; --k) out.integer(faces[i].corners[k]->outputIndex).text(", ");
      out.text(i + 1 < faces.size() ? "-1 ,\n" : "-1  ]\n");
    }
  }
  out.line("materialIndex -1\n");
  out.line("normalIndex -1\n");
  out.line("textureCoordIndex -1\n");
}

}  // namespace lumeric
