#include "reader/FieldReading.h"

#include "core/QvAtom.h"
#include "reader/QvSceneInput.h"
#include "reader/ReadErrors.h"
#include "scene/FieldNameCandidates.h"
#include "scene/QvField.h"
#include "scene/QvFieldTable.h"
#include "scene/QvNode.h"

namespace lumeric {

namespace {

bool readFieldSpecs(QvSceneInput* in, QvNode* node) {
  QvFieldTable* table = node->getFieldTable();
  char c;
  if (!in->readChar(c) || c != '[') return false;
  if (!in->readChar(c)) return false;
  if (c == ']') return true;
  in->putBackChar(c);
  bool newFields = table->newFieldsAllowed(node);
  for (;;) {
    QvAtom typeName;
    QvAtom name;
    if (!in->readName(typeName, QvSceneInput::kUpperName) || !in->readName(name, QvSceneInput::kLowerName)) {
      return false;
    }
    if (newFields && !table->createDeclaredField(node, typeName, name)) return false;
    if (!in->readChar(c)) return false;
    if (c == ']') return true;
    if (c != ',') return false;
    if (in->peekChar(']')) {
      in->readChar(c);
      return true;
    }
  }
}

bool readFieldSpec(QvSceneInput* in, QvNode* node) {
  QvFieldTable* table = node->getFieldTable();
  QvAtom typeName;
  QvAtom name;
  if (!in->readName(typeName, QvSceneInput::kUpperName) || !in->readName(name, QvSceneInput::kLowerName)) {
    return false;
  }
  QvField* field = nullptr;
  if (table->newFieldsAllowed(node)) {
    if (!table->createDeclaredField(node, typeName, name)) return false;
    field = table->findField(node, name);
  } else {
    field = table->findField(node, name);
  }
  if (field == nullptr) return false;
  return readFieldValue(in, field, name);
}

}  // namespace

bool readFieldValue(QvSceneInput* in, QvField* field, QvAtom name) {
  if (field->readValue(in)) return true;
  return readError(in, "Couldn't read value for field \"%s\"", name.text());
}

bool readFieldValues(QvSceneInput* in, QvNode* node, bool unknownIsError) {
  QvFieldTable* table = node->getFieldTable();
  if (table == nullptr || table->getNumFields() == 0) return true;
  for (;;) {
    QvAtom name;
    if (!in->readName(name, QvSceneInput::kLowerName) || name.isEmpty()) return true;
    QvField* field = table->findField(node, name);
    if (field == nullptr) {
      if (unknownIsError) {
        FieldNameCandidates meant(NameCandidates::kField, name.text(), node);
        OfferedCandidates offered(meant);
        return readError(in, "Unknown field \"%s\"", name.text());
      }
      in->putBackWord(name.text());
      return true;
    }
    if (!readFieldValue(in, field, name)) return false;
  }
}

bool readFieldSpecification(QvSceneInput* in, QvNode* node) {
  QvAtom word;
  if (!in->readName(word, QvSceneInput::kLowerName)) return true;
  bool ok = true;
  if (word.named("fields")) {
    ok = readFieldSpecs(in, node);
  } else if (word.named("field")) {
    ok = readFieldSpec(in, node);
  } else {
    in->putBackWord(word.text());
  }
  if (!ok) readError(in, "Bad field specifications for node");
  return ok;
}

}  // namespace lumeric
