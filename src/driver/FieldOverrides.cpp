#include "driver/FieldOverrides.h"

#include <cstdio>
#include <memory>

#include "core/QvAtom.h"
#include "core/QvContext.h"
#include "core/RunState.h"
#include "reader/QvSceneInput.h"
#include "scene/DefTable.h"
#include "scene/QvField.h"
#include "scene/QvFieldTable.h"
#include "scene/QvNode.h"

namespace lumeric {

namespace {

struct FileCloser {
  void operator()(FILE* file) const { std::fclose(file); }
};

// Reads `value` into `field` of `node` through a scene input of its own, so
// the field reads it exactly as from the file, placed at the node's line.
// False when the field refuses it or text is left over.
bool readValueInto(QvField* field, QvNode* node, const std::string& value) {
  std::string text = "#VRML V1.0 ascii\n" + value + "\n";
  std::unique_ptr<FILE, FileCloser> file(fmemopen(const_cast<char*>(text.data()), text.size(), "r"));
  if (file == nullptr) return false;
  QvSceneInput input;
  input.setFile(file.get());
  if (!input.skipWhiteSpace()) return false;
  if (node->line > 0) input.setLine(node->line);
  const char* fileName = node->fileName.text();
  bool pushed = fileName != nullptr && fileName[0] != '\0' && theContext.pushFile(fileName);
  field->isExpression = 0;
  bool ok = field->readValue(&input);
  if (pushed) theContext.popFile();
  if (!ok) return false;
  field->attachNode(node);
  char c;
  return input.skipWhiteSpace() && !input.getChar(c);
}

}  // namespace

bool applyFieldOverrides(const std::vector<FieldOverride>& overrides, std::string& error) {
  for (const FieldOverride& change : overrides) {
    const std::string what = "-D " + change.node + ":" + change.field + "=" + change.value + ": ";
    QvNode* node = theRun.defNames != nullptr ? theRun.defNames->findName(QvAtom(change.node.c_str())) : nullptr;
    if (node == nullptr) {
      error = what + "no node is named \"" + change.node + "\"";
      return false;
    }
    QvFieldTable* table = node->getFieldTable();
    QvField* field = table != nullptr ? table->findField(node, change.field.c_str()) : nullptr;
    if (field == nullptr) {
      error = what + "the node \"" + change.node + "\" has no field \"" + change.field + "\"";
      return false;
    }
    if (!readValueInto(field, node, change.value)) {
      error = what + "not one value of the field's type " + field->getTypeName();
      return false;
    }
  }
  return true;
}

}  // namespace lumeric
