#include "nodes/extensions/DeclaredNumber.h"

#include "expr/Term.h"
#include "scene/QvField.h"

namespace lumeric {

NumberValue declaredNumberOf(QvField* field) {
  NumberValue result;
  if (field == nullptr) return result;
  Term* value = field->GetLumericValue(-1, -1, nullptr);
  ScalarTerm* number = asScalar(value);
  if (value == nullptr) {
    result.state = NumberState::kNoValue;
  } else if (number == nullptr) {
    result.state = NumberState::kNotNumber;
  } else {
    result.state = NumberState::kNumber;
    result.value = number->value;
  }
  return result;
}

}  // namespace lumeric
