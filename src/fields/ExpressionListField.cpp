#include "fields/ExpressionListField.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "fields/FieldSupport.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"

namespace lumeric {

// A list starts with one element; it is made through allocValues like any
// other growth, so a fresh list has num 1 and capacity growBy (10).
ExpressionListField::ExpressionListField(int width) : values(width) { allocValues(1); }

void ExpressionListField::setCapacity(int count, int step) {
  growBy = step;
  if (count > capacity) capacity = count;
}

// capacity and growBy keep the numbers of the list rule; the storage itself
// grows in doubling segments (ExpressionStore), whatever steps are asked.
void ExpressionListField::allocValues(int count) {
  if (count < 0) count = 0;
  if (count > capacity && count < static_cast<int64_t>(capacity) + growBy) {
    setCapacity(capacity + growBy, growBy);
  } else if (count > capacity) {
    capacity = count;
  } else if (count == 0) {
    capacity = 0;
  }
  values.resize(count);
  num = count;
  ownedCount_ = std::min(ownedCount_, count);
}

void ExpressionListField::attachNode(QvNode* node) {
  if (node == nullptr) return;
  int n = values.width();
  for (int i = ownedCount_; i < num; ++i) {
    FieldExpression* first = element(i);
    for (int k = 0; k < n; ++k) first[k].attachOwner(node);
  }
  ownedCount_ = num;
}

bool ExpressionListField::readTexts(QvSceneInput* in, int index, bool lookForExpression) {
  if (index < 0 || index >= num) return false;
  FieldExpression* first = element(index);
  int n = values.width();
  // Reading gives the texts the container as owner; without a container
  // they have none, and attachNode must look at them again.
  if (container == nullptr) ownedCount_ = std::min(ownedCount_, index);
  if (lookForExpression && n > 1 && in->peekChar('=')) {
    isExpression = 1;
    return in->readValueText(first[0], container);
  }
  for (int k = 0; k < n; ++k) {
    if (!in->readValueText(first[k], container)) return false;
  }
  // Every text of the element now has the container as owner.
  if (container != nullptr && index == ownedCount_) ownedCount_ = index + 1;
  if (lookForExpression && first[0].startsWith('=')) isExpression = 1;
  return true;
}

FieldExpression* ExpressionListField::firstExpression(FieldExpression* fallback) {
  return num > 0 ? element(0) : fallback;
}

double ExpressionListField::numberAt(int i, int k) {
  if (i < 0 || i >= num) return 0;
  return numberOf(element(i)[k]);
}

int ExpressionListField::extend(int count) {
  if (count < 0 || static_cast<int64_t>(num) + count > INT_MAX) return -1;
  int first = num;
  allocValues(num + count);
  return first;
}

bool ExpressionListField::readValue(QvSceneInput* in) {
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
    if (!elementRead) return readError(in, "Couldn't read value %d of field", n);
    if (!in->readChar(c)) return readError(in, "Couldn't read value %d of field", n);
    if (c == ']') break;
    if (c != ',') return readError(in, "Expected '%c' or '%c' but got '%c' while reading value %d", ',', ']', c, n);
    if (in->peekChar(']')) {
      in->readChar(c);
      break;
    }
  }
  if (num > n) setNum(n);
  return true;
}

}  // namespace lumeric
