// The base of the single-valued types whose value is one expression
// (SFNumberField, SFStringField): the expression, its reading and its owner.
// The types add how the value is evaluated, exchanged and written.
#ifndef LUMERIC_FIELDS_SINGLEEXPRESSIONFIELD_H
#define LUMERIC_FIELDS_SINGLEEXPRESSIONFIELD_H

#include "reader/QvSceneInput.h"
#include "scene/FieldExpression.h"
#include "scene/QvField.h"

namespace lumeric {

class SingleExpressionField : public QvSingleField {
 public:
  void attachNode(QvNode* node) override { value.attachOwner(node); }
  // One value text as it stands, quotation marks and a leading "=" included;
  // the parser makes sense of it when the value is evaluated.
  bool readValue(QvSceneInput* in) override { return in->readValueText(value, container); }

  FieldExpression value;
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_SINGLEEXPRESSIONFIELD_H
