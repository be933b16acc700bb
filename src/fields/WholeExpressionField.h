// The base of QvSFColor, QvSFRotation and QvSFMatrix: N component
// expressions and a separate whole-field expression, which holds a value
// given as one expression ("=...").  The types add their own exchange,
// writing and copying, which differ in almost every rule.
#ifndef LUMERIC_FIELDS_WHOLEEXPRESSIONFIELD_H
#define LUMERIC_FIELDS_WHOLEEXPRESSIONFIELD_H

#include "fields/FieldSupport.h"
#include "scene/FieldExpression.h"
#include "scene/QvField.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

template <int N>
class WholeExpressionField : public QvSingleField {
 public:
  static constexpr int kSize = N;

  // An "=" value goes into wholeExpression and sets isExpression; otherwise
  // N value texts in component order.
  bool readValue(QvSceneInput* in) override {
    if (in->peekChar('=')) {
      isExpression = 1;
      return in->readValueText(wholeExpression, container);
    }
    for (FieldExpression& component : values) {
      if (!in->readValueText(component, container)) return false;
    }
    return true;
  }
  // The whole-field expression when the field is defined by it, else the
  // components.
  void attachNode(QvNode* node) override {
    if (isExpression) {
      wholeExpression.attachOwner(node);
      return;
    }
    for (FieldExpression& component : values) component.attachOwner(node);
  }

  FieldExpression values[N];
  FieldExpression wholeExpression;

 protected:
  // The evaluated components, 0 where one gives no number.
  void componentNumbers(double (&numbers)[N]) { numbersOf(values, N, numbers); }
  void storeComponents(const double* numbers) { storeNumbers(values, numbers, N); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_WHOLEEXPRESSIONFIELD_H
