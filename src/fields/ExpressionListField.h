// The base of the list field types: element storage with the list growth
// rules, owner attachment and the reading of one element's texts.  The
// typed lists (MFVectorField, MFNumberField, QvMFString) add how their
// elements are evaluated, exchanged and written.
#ifndef LUMERIC_FIELDS_EXPRESSIONLISTFIELD_H
#define LUMERIC_FIELDS_EXPRESSIONLISTFIELD_H

#include "fields/ExpressionStore.h"
#include "scene/QvField.h"

namespace lumeric {

class ExpressionListField : public QvMultiField {
 public:
  // Sets growBy to `step`; capacity becomes `count` when that is larger.
  void setCapacity(int count, int step) override;
  // num becomes `count`.  capacity follows the list rule: it grows by growBy
  // when the need is within one step, else to exactly `count`, and drops to
  // 0 when the list is emptied.  New elements hold no text.
  void allocValues(int count) override;
  // attachOwner on every expression of the first num elements.
  void attachNode(QvNode* node) override;
  // A single value, or values between "[" and "]" separated by ",".
  bool readValue(QvSceneInput* in) override;
  // Element `index` as readTexts reads it with lookForExpression: one
  // expression ("=...") may stand for the whole element.
  bool readElement(QvSceneInput* in, int index) override { return readTexts(in, index, true); }

  // The expressions of element `index` (0 <= index < num), width() of them.
  FieldExpression* element(int index) { return values.element(index); }
  int width() const { return values.width(); }

 protected:
  // A list of one element without text.
  explicit ExpressionListField(int width);

  // Reads element `index` (already allocated).  With `lookForExpression`, a
  // value that starts with "=" is one text in the element's first
  // expression and sets isExpression; otherwise one value text per
  // component.
  bool readTexts(QvSceneInput* in, int index, bool lookForExpression);
  // Where messages about the whole list go: the first element's first
  // expression, or `fallback` when the list is empty.
  FieldExpression* firstExpression(FieldExpression* fallback);
  // Component `k` of element `i` evaluated as a number; 0 when it gives
  // none, or when the element no longer exists: an expression can change
  // the list that holds it, so loops look elements up again every time.
  double numberAt(int i, int k);
  // Appends `count` elements without text; returns the index of the first,
  // or -1 (and nothing changes) when the list would outgrow the int range.
  int extend(int count);

  ExpressionStore values;

 private:
  // The first ownedCount_ elements are known to have an owner, so that
  // attachNode, which the field table calls on every look-up, costs nothing
  // for a long list that is already attached.
  int ownedCount_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_EXPRESSIONLISTFIELD_H
