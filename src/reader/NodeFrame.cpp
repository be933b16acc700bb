#include "reader/NodeFrame.h"

#include "driver/QvContext.h"
#include "reader/QvField.h"
#include "reader/QvFieldTable.h"
#include "reader/QvNode.h"

namespace lumeric {

void writeOpeningLine(FILE* out, QvNode* node, const char* className) {
  if (node->hasName()) {
    // A computed name that gives no text still marks the node as named;
    // it is written with an empty name rather than dropped silently.
    const char* name = node->getName();
    theContext.writeIndented(out, "DEF %s %s {\n", name != nullptr ? name : "", className);
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
