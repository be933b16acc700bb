#include "fields/QvSFBitMask.h"

#include "core/QvContext.h"
#include "fields/FieldSupport.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"
#include "scene/SceneMessages.h"

namespace lumeric {

void QvSFBitMask::SetLumericValue(Term*, int, int, FieldExpression* at) {
  reportAt(at, "Not implemented: tried to access SFBitMask::SetLumericValue");
}

Term* QvSFBitMask::GetLumericValue(int, int, FieldExpression* at) {
  reportAt(at, "Not implemented: tried to access SFBitMask::GetLumericValue");
  return nullptr;
}

// A value that no single entry holds lists the entries whose flags it holds
// entirely, so that reading the text back gives the same value: SIDES and
// BOTTOM of a cylinder are written as those two, without the ALL that would
// also bring TOP.  Entries without flags are never listed.
void QvSFBitMask::write(SceneWriter& out) {
  int entry = findValue(value);
  if (entry >= 0) {
    out.character(' ').text(enumNames[entry].text()).character('\n');
    return;
  }
  out.text(" ( ");
  bool first = true;
  for (int k = 0; k < numEnums; ++k) {
    if (enumValues[k] == 0 || (enumValues[k] & value) != enumValues[k]) continue;
    if (!first) out.text(" | ");
    out.text(enumNames[k].text());
    first = false;
  }
  out.text(" )\n");
}

bool QvSFBitMask::lookUpFlag(QvSceneInput* in, QvAtom name, int& flag) {
  int entry = findName(name);
  if (entry < 0) return readError(in, "Unknown QvSFBitMask bit mask value \"%s\"", name.text());
  flag = enumValues[entry];
  return true;
}

bool QvSFBitMask::readValue(QvSceneInput* in) {
  char c;
  bool gotChar = in->readChar(c);
  QvAtom name;
  int flag = 0;
  if (!gotChar || c != '(') {
    if (gotChar) in->putBackChar(c);
    if (!in->readName(name, QvSceneInput::kUpperName) || !lookUpFlag(in, name, flag)) return false;
    value = flag;
    return true;
  }
  value = 0;
  for (;;) {
    if (!in->readName(name, QvSceneInput::kUpperName)) return false;
    if (!name.isEmpty()) {
      if (!lookUpFlag(in, name, flag)) return false;
      value |= flag;
    }
    if (!in->readChar(c)) return readError(in, "EOF reached before '%c' in QvSFBitMask value", ')');
    if (c == ')') return true;
    if (c != '|') return readError(in, "Expected '%c' or '%c', got '%c' in QvSFBitMask value", '|', ')', c);
  }
}

}  // namespace lumeric
