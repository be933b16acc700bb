#include "nodes/generators/QvConnect.h"

#include <cmath>
#include <cstring>

#include "expr/FieldReferences.h"
#include "expr/Term.h"
#include "expr/TermArena.h"
#include "expr/functions/OrientationBetween.h"
#include "nodes/generators/GeometryWriter.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The three numbers of a center, or null for any other value.
const double* pointOf(QvField* center) {
  VectorTerm* point = asVectorOf(center->GetLumericValue(-1, -1, nullptr), 3);
  return point != nullptr ? point->elements : nullptr;
}

}  // namespace

QvField* QvConnect::endCenter(QvField* reference, const char* invalidMessage) {
  StringTerm* nodeName = asString(reference->GetLumericValue(-1, -1, nullptr));
  if (nodeName == nullptr || nodeName->text == nullptr) {
    return reportAtNode(this, "%s", invalidMessage);
  }
  QvField* center = findNodeField(nodeName->text, "center");
  if (center == nullptr) reportAtNode(this, "Field %s:%s not found", nodeName->text, "center");
  return center;
}

void QvConnect::write(SceneWriter& out) {
  NodeVisit visit(this);
  // Every value is written out as text; none of the terms is kept.
  TermScope scope;
  // A field of a name given twice counts with its last declaration; the
  // look-ups of both post their failures, in the order of the file.
  QvField* first = nullptr;
  QvField* second = nullptr;
  QvField* radius = nullptr;
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    const char* fieldName = declaredFields.getFieldName(i).text();
    QvField* field = declaredFields.getField(this, i);
    if (std::strcmp(fieldName, "first") == 0) {
      first = endCenter(field, "Connect reference to expession in \"frist\" field is invalid");
    } else if (std::strcmp(fieldName, "second") == 0) {
      second = endCenter(field, "Connect reference to expession in \"second\" field is invalid");
    } else if (std::strcmp(fieldName, "radius") == 0) {
      radius = field;
    }
  }
  if (first == nullptr) reportAtNode(this, "\"first\" field not defined");
  if (second == nullptr) reportAtNode(this, "\"second\" field not defined");
  if (radius == nullptr) reportAtNode(this, "\"radius\" field not defined");
  if (first == nullptr || second == nullptr || radius == nullptr) return;
  // Values of another kind have posted their own errors, if any, when they
  // were evaluated; nothing is added here.
  const double* a = pointOf(first);
  const double* b = pointOf(second);
  ScalarTerm* r = asScalar(radius->GetLumericValue(-1, -1, nullptr));
  if (a == nullptr || b == nullptr || r == nullptr) return;
  writeCylinderBetween(out, a, b, r->value);
}

void QvConnect::writeCylinderBetween(SceneWriter& out, const double a[3], const double b[3], double radius) {
  double v[3];
  double middle[3];
  for (int k = 0; k < 3; ++k) {
    v[k] = b[k] - a[k];
    middle[k] = a[k] + v[k] * 0.5;
  }
  double d = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
  if (d == 0) {
    reportAtNode(this, "The two spheres are colocated - no connection will be generated");
    return;
  }
  // A Cylinder stands along y, centred on the origin: turn its axis from
  // bottom to top onto the direction from a to b.  The shared routine
  // computes the axis term by term, which fixes the signs of zero
  // components in the output.
  const double bottom[3] = {0, -d / 2, 0};
  const double top[3] = {0, d / 2, 0};
  double rotation[4];
  orientationBetween(bottom, top, a, b, rotation, nullptr);
  SeparatorBlock block(out, getName());
  writeChildren(out);
  const GeometryOutput to{out, this};
  writeTransform(to, "", middle, rotation, nullptr, nullptr, nullptr);
  writeCylinder(to, "", "", radius, d);
}

}  // namespace lumeric
