#include "reader/QvField.h"

#include "driver/QvContext.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

void QvField::setCapacity(int, int) {}

void QvField::attachNode(QvNode*) {}

bool QvField::check() { return true; }

bool QvField::read(QvSceneInput* in, QvAtom name) {
  if (readValue(in)) return true;
  theContext.readError(in, "Couldn't read value for field \"%s\"", name.text());
  return false;
}

void QvSingleField::appendValue(Term*, FieldExpression* where) {
  theContext.reportAtExpression(where, "Cannot append values to this field");
}

void QvMultiField::setNum(int count) {
  if (count != num) allocValues(count);
}

bool QvMultiField::readValue(QvSceneInput* in) {
  char c;
  bool gotChar = in->readChar(c);
  if (!gotChar || c != '[') {
    if (gotChar) in->putBackChar(c);
    setNum(1);
    return readElement(in, 0);
  }
  if (in->readChar(c)) {
    if (c == ']') {
      setNum(0);
      return true;
    }
    in->putBackChar(c);
  }
  int n = 0;
  for (;;) {
    if (num <= n) setNum(n + 1);
    bool elementRead = readElement(in, n);
    ++n;
    if (!elementRead) {
      theContext.readError(in, "Couldn't read value %d of field", n);
      return false;
    }
    if (!in->readChar(c)) {
      theContext.readError(in, "Couldn't read value %d of field", n);
      return false;
    }
    if (c == ']') break;
    if (c != ',') {
      theContext.readError(in, "Expected '%c' or '%c' but got '%c' while reading value %d", ',', ']', c, n);
      return false;
    }
    if (in->peekChar(']')) {
      in->readChar(c);
      break;
    }
  }
  if (num > n) setNum(n);
  return true;
}

}  // namespace lumeric
