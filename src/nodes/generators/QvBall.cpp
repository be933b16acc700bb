#include "nodes/generators/QvBall.h"

#include "expr/Term.h"
#include "expr/TermArena.h"
#include "nodes/generators/GeometryWriter.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

void QvBall::write(SceneWriter& out) {
  NodeVisit visit(this);
  // Every value is written out as text; none of the terms is kept.
  TermScope scope;
  QvField* center = findDeclaredField("center");
  QvField* radius = findDeclaredField("radius");
  if (radius == nullptr) reportAtNode(this, "\"radius\" field not defined");
  if (center == nullptr) reportAtNode(this, "\"center\" field not defined");
  if (radius == nullptr || center == nullptr) return;
  SeparatorBlock block(out, getName());
  writeChildren(out);
  const GeometryOutput to{out, this};
  if (VectorTerm* c = asVectorOf(center->GetLumericValue(-1, -1, nullptr), 3)) {
    writeTranslation(to, c->elements[0], c->elements[1], c->elements[2]);
  }
  if (ScalarTerm* r = asScalar(radius->GetLumericValue(-1, -1, nullptr))) writeSphere(to, "", r->value);
}

}  // namespace lumeric
