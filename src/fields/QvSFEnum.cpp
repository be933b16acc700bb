#include "fields/QvSFEnum.h"

#include "core/QvContext.h"
#include "fields/FieldSupport.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"
#include "scene/SceneMessages.h"

namespace lumeric {

void QvSFEnum::SetLumericValue(Term*, int, int, FieldExpression* at) {
  reportAt(at, "Not implemented: tried to access a SFEnum::SetLumericValue");
}

Term* QvSFEnum::GetLumericValue(int, int, FieldExpression* at) {
  reportAt(at, "Not implemented: tried to access a SFEnum::GetLumericValue");
  return nullptr;
}

// A value that no entry holds (an enumeration field of a node whose class
// is not built in has no entries at all) is written as its number, so that
// the line still ends.
void QvSFEnum::write(SceneWriter& out) {
  int entry = findValue(value);
  out.character(' ');
  if (entry >= 0) {
    out.text(enumNames[entry].text());
  } else {
    out.integer(value);
  }
  out.character('\n');
}

bool QvSFEnum::readValue(QvSceneInput* in) {
  QvAtom name;
  if (!in->readName(name, QvSceneInput::kUpperName)) return false;
  int entry = findName(name);
  if (entry < 0) return readError(in, "Unknown QvSFEnum enumeration value \"%s\"", name.text());
  value = enumValues[entry];
  return true;
}

void QvSFEnum::copyFrom(QvSFEnum& source) {
  value = source.value;
  setEnumData(source.numEnums, source.enumValues, source.enumNames);
}

void QvSFEnum::setEnumData(int count, const int* values, const QvAtom* names) {
  bool usable = count > 0 && values != nullptr && names != nullptr;
  numEnums = usable ? count : 0;
  enumValues = usable ? values : nullptr;
  enumNames = usable ? names : nullptr;
}

int QvSFEnum::findName(QvAtom name) const {
  for (int k = 0; k < numEnums; ++k) {
    if (enumNames[k] == name) return k;
  }
  return -1;
}

int QvSFEnum::findValue(int v) const {
  for (int k = 0; k < numEnums; ++k) {
    if (enumValues[k] == v) return k;
  }
  return -1;
}

}  // namespace lumeric
