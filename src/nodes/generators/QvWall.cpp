#include "nodes/generators/QvWall.h"

#include <cstring>

#include "expr/Term.h"
#include "expr/TermArena.h"
#include "nodes/generators/GeometryWriter.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

QvWall::~QvWall() = default;

void QvWall::evaluate(QvGroupNode* parentGroup, bool copy) {
  if (copy) return QvGroupNode::evaluate(parentGroup, true);
  NodeVisit visit(this);
}

void QvWall::readShape() {
  if (placementField != nullptr) {
    if (ScalarTerm* side = asScalar(placementField->GetLumericValue(-1, -1, nullptr))) placement = side->value;
    placement = placement < 0 ? -1.0 : placement > 0 ? 1.0 : 0.0;
  }
  if (widthField != nullptr) {
    if (ScalarTerm* thickness = asScalar(widthField->GetLumericValue(-1, -1, nullptr))) width = thickness->value;
  }
}

std::unique_ptr<WallMesh> QvWall::buildMesh() {
  MatrixTerm* path = asMatrix(dataField->GetLumericValue(-1, -1, nullptr));
  VectorTerm* heights = asVector(heightField->GetLumericValue(-1, -1, nullptr));
  VectorTerm* elevations = asVector(elevationField->GetLumericValue(-1, -1, nullptr));
  if (path == nullptr || heights == nullptr || elevations == nullptr) return nullptr;
  if (path->rows >= 2 && path->cols < 2) return nullptr;
  auto built = std::make_unique<WallMesh>();
  built->build(path->elements, path->rows, path->cols, RepeatedNumbers{heights->elements, heights->length},
               RepeatedNumbers{elevations->elements, elevations->length});
  return built;
}

void QvWall::bindParents() {
  NodeVisit visit(this);
  mesh.reset();
  elevationField = heightField = widthField = dataField = placementField = nullptr;
  // The first field of each name counts.
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    const char* fieldName = declaredFields.getFieldName(i).text();
    QvField* field = declaredFields.getField(this, i);
    QvField** slot = std::strcmp(fieldName, "width") == 0       ? &widthField
                     : std::strcmp(fieldName, "data") == 0      ? &dataField
                     : std::strcmp(fieldName, "placement") == 0 ? &placementField
                     : std::strcmp(fieldName, "height") == 0    ? &heightField
                     : std::strcmp(fieldName, "elevation") == 0 ? &elevationField
                                                           : nullptr;
    if (slot != nullptr && *slot == nullptr) *slot = field;
  }
  readShape();
  if (dataField == nullptr) reportAtNode(this, "\"data\" field not defined");
  bool complete = dataField != nullptr && heightField != nullptr && elevationField != nullptr;
  if (!complete && widthField == nullptr) reportAtNode(this, "\"width\" field not defined");
  if (!complete) return;
  {
    // The mesh copies the numbers it needs.
    TermScope scope;
    mesh = buildMesh();
  }
  if (mesh != nullptr) bindChildren();
}

void QvWall::write(SceneWriter& out) {
  NodeVisit visit(this);
  if (mesh == nullptr) return;
  mesh->thicken(placement, width);
  const char* defName = getName();
  const GeometryOutput to{out, this};
  writeCoordinate3(to, defName, mesh->points());
  writeIndexedFaceSet(to, defName, mesh->faces());
  writeChildren(out);
}

}  // namespace lumeric
