#include "nodes/generators/GeometryWriter.h"

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "fields/FieldSupport.h"

namespace lumeric {

namespace {

// "DEF name type {" or "type {", indented.
void writeHeader(OutputText& text, const char* name, const char* type) {
  text.indentation();
  if (name != nullptr && name[0] != '\0') text.text("DEF ").text(name).character(' ');
  text.text(type).text(" {\n");
}

// The text of one generated node, collected in a buffer: a generator may
// write a hundred thousand small nodes, and single formatted prints per
// number would dominate the run.
class NodeText {
 public:
  // Writes the header and raises the indentation.
  NodeText(FILE* out, const char* name, const char* type) : text_(out) {
    writeHeader(text_, name, type);
    ++theContext.indentLevel;
  }
  // Lowers the indentation and writes the closing brace.
  ~NodeText() {
    --theContext.indentLevel;
    text_.indentation().text("}\n");
  }
  NodeText(const NodeText&) = delete;
  NodeText& operator=(const NodeText&) = delete;

  OutputText& line() { return text_.indentation(); }
  OutputText& text() { return text_; }

  // "%g" of the rounded number, preceded by `before`.
  NodeText& number(const char* before, double v) {
    double written = 0;
    if (!roundForWriting(v, written)) theContext.reportAtNode(theContext.topNode(), "Number is not finite");
    text_.text(before).number(written);
    return *this;
  }
  // "name a b c" or, with four numbers, "name a b c  angle"; then a newline.
  void vectorLine(const char* name, const double* v, int count) {
    line().text(name);
    for (int k = 0; k < count; ++k) number(k == 3 ? "  " : " ", v[k]);
    text_.character('\n');
  }

 private:
  OutputText text_;
};

}  // namespace

SeparatorBlock::SeparatorBlock(FILE* out, const char* name) : out_(out) {
  OutputText text(out_);
  writeHeader(text, name, "Separator");
  ++theContext.indentLevel;
}

SeparatorBlock::~SeparatorBlock() {
  --theContext.indentLevel;
  OutputText(out_).indentation().text("}\n");
}

void writeTranslation(FILE* out, double x, double y, double z) {
  NodeText node(out, nullptr, "Translation");
  const double v[3] = {x, y, z};
  node.vectorLine("translation", v, 3);
}

void writeSphere(FILE* out, const char* name, double radius) {
  NodeText node(out, name, "Sphere");
  node.vectorLine("radius", &radius, 1);
}

void writeTransform(FILE* out, const char* name, const double* translation, const double* rotation,
                    const double* scaleFactor, const double* scaleOrientation, const double* center) {
  NodeText node(out, name, "Transform");
  if (translation != nullptr) node.vectorLine("translation", translation, 3);
  if (rotation != nullptr) node.vectorLine("rotation", rotation, 4);
  if (scaleFactor != nullptr) node.vectorLine("scaleFactor", scaleFactor, 3);
  if (scaleOrientation != nullptr) node.vectorLine("scaleOrientation", scaleOrientation, 4);
  if (center != nullptr) node.vectorLine("center", center, 3);
}

void writeCylinder(FILE* out, const char* name, const char* parts, double radius, double height) {
  NodeText node(out, name, "Cylinder");
  if (parts != nullptr && parts[0] != '\0') node.line().text("parts ").text(parts).character('\n');
  node.vectorLine("radius", &radius, 1);
  node.vectorLine("height", &height, 1);
}

void writeCoordinate3(FILE* out, const char* name, WallMesh::PointList& points) {
  NodeText node(out, name, "Coordinate3");
  if (points.empty()) {
    node.line().text("point []\n");
    return;
  }
  // The first point follows the bracket on its line; the others stand one
  // level deeper, one per line.
  node.line().text("point [");
  int32_t index = 0;
  for (WallPoint& point : points) {
    if (index > 0) node.line();
    point.outputIndex = index++;
    node.number("", point.x).number(" ", point.y).number(" ", point.z);
    node.text().text(static_cast<size_t>(index) < points.size() ? ",\n" : " ]\n");
    if (index == 1) ++theContext.indentLevel;
  }
  --theContext.indentLevel;
}

void writeIndexedFaceSet(FILE* out, const char* name, const WallMesh::FaceList& faces) {
  NodeText node(out, name, "IndexedFaceSet");
  node.line().text("coordIndex [");
  if (faces.empty()) {
    node.text().text(" ]\n");
    return;
  }
  ++theContext.indentLevel;
  for (size_t i = 0; i < faces.size(); ++i) {
    if (i > 0) node.line();
    // Corners from the last to the first, the reverse of the face's order.
    for (int k = 3; k >= 0; --k) node.text().integer(faces[i].corners[k]->outputIndex).text(", ");
    node.text().text(i + 1 < faces.size() ? "-1 ,\n" : "-1  ]\n");
  }
  --theContext.indentLevel;
  node.line().text("materialIndex -1\n");
  node.line().text("normalIndex -1\n");
  node.line().text("textureCoordIndex -1\n");
}

}  // namespace lumeric
