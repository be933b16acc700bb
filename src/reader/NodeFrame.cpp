#include "reader/NodeFrame.h"

#include "driver/QvContext.h"
#include "reader/QvField.h"
#include "reader/QvFieldTable.h"
#include "reader/QvNode.h"

namespace lumeric {

void writeOpeningLine(FILE* out, QvNode* node, const char* className) {
  // A computed name that gives no text (its expression has reported why)
  // leaves the node unnamed rather than writing an empty DEF name.
  const char* name = node->hasName() ? node->getName() : nullptr;
  if (name != nullptr && name[0] != '\0') {
    theContext.writeIndented(out, "DEF %s %s {\n", name, className);
  } else {
    theContext.writeIndented(out, "%s {\n", className);
  }
}

void writeFieldLines(FILE* out, QvNode* node) {
  QvFieldTable* table = node->getFieldTable();
  if (table == nullptr) return;
  for (int i = 0; i < table->getNumFields(); ++i) {
    theContext.writeIndented(out, "%s", table->getFieldName(i).text());
    table->getField(node, i)->write(out);
  }
}

void writeClosingLine(FILE* out) { theContext.writeIndented(out, "}\n\n"); }

}  // namespace lumeric
