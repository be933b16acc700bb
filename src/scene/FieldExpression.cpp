#include "scene/FieldExpression.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include "core/QvContext.h"
#include "core/NumberText.h"
#include "core/RunState.h"
#include "core/ShortCopy.h"
#include "scene/QvNode.h"
#include "scene/SceneMessages.h"

namespace lumeric {

long FieldExpression::heapTexts_ = 0;

FieldExpression::FieldExpression(const FieldExpression& other) : mark(other.mark), line(other.line) {
  clearStorage();
  setText(other.text());
}

FieldExpression& FieldExpression::operator=(const FieldExpression& other) {
  if (this != &other) {
    setText(other.text());
    mark = other.mark;
    line = other.line;
  }
  return *this;
}

FieldExpression::FieldExpression(FieldExpression&& other) noexcept
    : mark(other.mark), line(other.line), owner(other.owner) {
  moveFrom(other);
}

FieldExpression& FieldExpression::operator=(FieldExpression&& other) noexcept {
  if (this != &other) {
    freeText();
    moveFrom(other);
    mark = other.mark;
    line = other.line;
  }
  return *this;
}

void FieldExpression::moveFrom(FieldExpression& other) {
  std::memcpy(&storage_, &other.storage_, sizeof(storage_));
  other.clearStorage();
}

void FieldExpression::freeText() {
  if (form() == kHeapForm) {
    theRun.valueBytes -= static_cast<long long>(std::strlen(storage_.heap.pointer) + 1);
    std::free(storage_.heap.pointer);
    --heapTexts_;
  }
  clearStorage();
}

void FieldExpression::setText(const char* text) {
  if (text == nullptr) {
    freeText();
    return;
  }
  setText(text, std::strlen(text));
}

void FieldExpression::setText(const char* text, size_t length) {
  if (text == nullptr) {
    freeText();
    return;
  }
  if (length < kInline) {
    // The source may be our own text; copy before releasing it.  The zeros
    // are the terminator and the inline form.
    char copy[kInline] = {};
    copyShort(copy, text, length);
    freeText();
    std::memcpy(storage_.bytes, copy, kInline);
    return;
  }
  char* heap = static_cast<char*>(std::malloc(length + 1));
  if (heap == nullptr) throw std::bad_alloc();
  std::memcpy(heap, text, length);
  heap[length] = '\0';
  freeText();
  theRun.valueBytes += static_cast<long long>(length + 1);  // the run's memory budget
  storage_.heap.pointer = heap;
  storage_.heap.reserved = 0;
  storage_.bytes[kInline - 1] = kHeapForm;
  ++heapTexts_;
}

void FieldExpression::setNumber(double value) {
  char text[kNumberTextSize];
  int length = formatNumber(text, value);
  setText(text, static_cast<size_t>(length));
}

void FieldExpression::setInteger(int value) {
  char text[kNumberTextSize];
  int length = formatInteger(text, value);
  setText(text, static_cast<size_t>(length));
}

void FieldExpression::attachOwner(QvNode* node) {
  if (owner != nullptr || node == nullptr) return;
  owner = node;
  line = node->line;
}

const char* FieldExpression::textFor(int serial) {
  if (theContext.currentSerial > mark) {
    mark = serial;
    return text();
  }
  if (mark < serial) {
    reportAtExpression(this, "Error: Circular reference");
    return "0";
  }
  return text();
}

}  // namespace lumeric
