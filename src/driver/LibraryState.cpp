#include "driver/LibraryState.h"

#include <cmath>

#include "driver/QvContext.h"
#include "reader/QvAtom.h"
#include "reader/QvNameTable.h"
#include "reader/QvPointerList.h"

namespace lumeric {

FILE* outputFile = nullptr;
char outputFileName[kOutputNameSize] = "";
bool extensionsEnabled = true;
QvSceneInput* currentInput = nullptr;
QvNameTable* nameRegistry = nullptr;
double precisionQuantum = 0.0001;

void addName(QvNode* node, const char* text) {
  if (nameRegistry == nullptr) nameRegistry = new QvNameTable();
  QvAtom key(text);
  void* value = nullptr;
  if (!nameRegistry->find(key.key(), value)) {
    value = new QvPointerList();
    nameRegistry->enter(key.key(), value);
  }
  static_cast<QvPointerList*>(value)->append(node);
}

void removeName(QvNode* node, const char* text) {
  void* value = nullptr;
  QvPointerList* list = nullptr;
  if (nameRegistry != nullptr && nameRegistry->find(QvAtom(text).key(), value)) {
    list = static_cast<QvPointerList*>(value);
  }
  int index = list == nullptr ? -1 : list->find(node);
  if (index < 0) {
    QvContext::programError("QvNode::removeName", "Program Error: Name \"%s\" (node %p) is not in dictionary", text,
                            static_cast<void*>(node));
    return;
  }
  list->remove(index);
}

double roundToPrecision(double v) {
  double q = precisionQuantum;
  if (!(q > 0)) return v;
  double steps = v / q;
  if (!std::isfinite(steps)) return v;
  return std::round(steps) * q;
}

bool roundForWriting(double v, double& out) {
  if (!std::isfinite(v)) {
    out = 0;
    return false;
  }
  out = roundToPrecision(v);
  return true;
}

}  // namespace lumeric
