#include "expr/FieldAssignments.h"

#include "core/QvContext.h"
#include "expr/FieldReferences.h"
#include "expr/TermConversions.h"
#include "scene/FieldNameCandidates.h"
#include "scene/QvField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

QvField* targetField(const char* nodeName, const char* fieldName, FieldExpression* at) {
  QvField* field = findNodeField(nodeName, fieldName);
  if (field == nullptr) {
    const FieldNameCandidates meant(NameCandidates::kFieldInScope, fieldName, findNamedNode(nodeName));
    OfferedCandidates offered(meant);
    reportAtExpression(at, "Field %s:%s not found", nodeName, fieldName);
  }
  return field;
}

}  // namespace

void setFieldValue(const char* nodeName, const char* fieldName, Term* first, Term* second, Term* value,
                   FieldExpression* at) {
  int i = -1;
  int j = -1;
  if ((first != nullptr && !indexFromTerm(first, &i)) || (second != nullptr && !indexFromTerm(second, &j))) {
    reportAtExpression(at, "Scaler index value expected");
    return;
  }
  if (QvField* field = targetField(nodeName, fieldName, at)) field->SetLumericValue(value, i, j, at);
}

void appendFieldValue(const char* nodeName, const char* fieldName, Term* value, FieldExpression* at) {
  if (QvField* field = targetField(nodeName, fieldName, at)) field->appendValue(value, at);
}

void declareField(const char* nodeName, const char* fieldName, Term* value, FieldExpression* at) {
  QvField* field = targetField(nodeName, fieldName, at);
  if (field == nullptr) return;
  if (VectorTerm* pair = asVectorOf(value, 2)) {
    field->setCapacity(truncateToIndex(pair->elements[0]), truncateToIndex(pair->elements[1]));
  } else if (ScalarTerm* count = asScalar(value)) {
    field->setCapacity(truncateToIndex(count->value), 0);
  } else {
    reportAtExpression(at, "Cannot declare value using this expression");
  }
}

}  // namespace lumeric
