#include "fields/QvMFString.h"

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "scene/SceneMessages.h"

namespace lumeric {

void QvMFString::appendValue(Term* term, FieldExpression* at) {
  StringTerm* string = asString(term);
  // Worded like the refusal of SetLumericValue.
  if (string == nullptr) return reportAt(at, "Bounds error: cannot append to a MFString field using this value");
  int first = extend(1);
  if (first >= 0) storeString(*element(first), string->text, true);
}

void QvMFString::SetLumericValue(Term* term, int i, int, FieldExpression* at) {
  StringTerm* string = asString(term);
  if (string == nullptr || i < 0 || i >= num) {
    return reportAt(at, "Bounds error: cannot set a MFString field using this value ");
  }
  storeString(*element(i), string->text, true);
}

// A negative element index other than the whole-list form is out of bounds
// like one past the end.
Term* QvMFString::GetLumericValue(int i, int j, FieldExpression* at) {
  if (i == -1 && j == -1) {
    reportAt(at, "Cannot access the MFString field:  Not implemented");
    return nullptr;
  }
  if (i < 0 || i >= num) return reportAtExpression(at, "Bounds error: tried to access MFString[%d]", i);
  return evaluateString(element(i));
}

// An element that does not evaluate to a string is written as the empty
// string "", so that the list stays well formed and keeps its length.
void QvMFString::write(SceneWriter& out) {
  out.list(num, kOneItemPerLine, [this, &out](int i) {
    StringTerm* string = i < num ? evaluateString(element(i)) : nullptr;
    out.character('"').text(string != nullptr && string->text != nullptr ? string->text : "").character('"');
  });
}

void QvMFString::copyFrom(QvMFString& source) {
  isExpression = 0;
  setNum(source.num);
  for (int i = 0; i < num; ++i) {
    StringTerm* string = i < source.num ? evaluateString(source.element(i)) : nullptr;
    if (i >= num) break;
    if (string != nullptr) {
      storeString(*element(i), string->text, true);
    } else {
      element(i)->clearText();
    }
  }
}

void QvMFString::setDefault(const char* text) {
  setNum(1);
  storeString(*element(0), text, true);
}

}  // namespace lumeric
