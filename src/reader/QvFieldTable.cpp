#include "reader/QvFieldTable.h"

#include <cstring>
#include <string>

#include "driver/QvContext.h"
#include "reader/QvField.h"
#include "reader/QvNode.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

namespace {

// Enumeration names are entered without surrounding white space.
QvAtom trimmedAtom(const char* text) {
  while (*text != '\0' && isSceneSpace(*text)) ++text;
  size_t length = std::strlen(text);
  while (length > 0 && isSceneSpace(text[length - 1])) --length;
  return QvAtom(text, length);
}

bool named(QvAtom atom, const char* text) { return std::strcmp(atom.text(), text) == 0; }

}  // namespace

QvFieldTable::~QvFieldTable() {
  if (ownsFields_) {
    for (Entry& entry : fields_) delete entry.field;
  }
  for (Enumeration* enumeration : enums_) delete enumeration;
}

void QvFieldTable::addField(QvNode* node, const char* name, QvField* field) { addField(node, QvAtom(name), field); }

void QvFieldTable::addField(QvNode* node, QvAtom name, QvField* field) {
  Entry entry{name, 0, nullptr};
  if (ownsFields_) {
    entry.field = field;
  } else {
    entry.offset = reinterpret_cast<char*>(field) - reinterpret_cast<char*>(node);
  }
  fields_.push_back(entry);
}

void QvFieldTable::addEnumValue(const char* typeName, const char* valueName, int value) {
  QvAtom type = trimmedAtom(typeName);
  Enumeration* target = nullptr;
  for (Enumeration* enumeration : enums_) {
    if (enumeration->typeName == type) target = enumeration;
  }
  if (target == nullptr) {
    target = new Enumeration{type, {}, {}};
    target->values.reserve(6);
    target->names.reserve(6);
    enums_.push_back(target);
  }
  target->values.push_back(value);
  target->names.push_back(trimmedAtom(valueName));
}

void QvFieldTable::getEnumData(const char* typeName, int& count, const int*& values, const QvAtom*& names) const {
  QvAtom type = trimmedAtom(typeName);
  for (Enumeration* enumeration : enums_) {
    if (enumeration->typeName == type) {
      count = static_cast<int>(enumeration->values.size());
      values = enumeration->values.data();
      names = enumeration->names.data();
      return;
    }
  }
  count = 0;
  values = nullptr;
  names = nullptr;
}

QvField* QvFieldTable::getField(QvNode* node, int index) const {
  const Entry& entry = fields_[static_cast<size_t>(index)];
  QvField* field =
      ownsFields_ ? entry.field : reinterpret_cast<QvField*>(reinterpret_cast<char*>(node) + entry.offset);
  field->attachNode(node);
  return field;
}

int QvFieldTable::findIndex(QvAtom name) const {
  for (size_t i = 0; i < fields_.size(); ++i) {
    if (fields_[i].name == name) return static_cast<int>(i);
  }
  return -1;
}

QvField* QvFieldTable::findField(QvNode* node, QvAtom name) const {
  int index = findIndex(name);
  return index < 0 ? nullptr : getField(node, index);
}

bool QvFieldTable::readFieldValues(QvSceneInput* in, QvNode* node, bool unknownIsError) {
  if (fields_.empty()) return true;
  for (;;) {
    QvAtom name;
    if (!in->readName(name, QvSceneInput::kLowerName) || name.isEmpty()) return true;
    QvField* field = findField(node, name);
    if (field == nullptr) {
      if (unknownIsError) {
        theContext.readError(in, "Unknown field \"%s\"", name.text());
        return false;
      }
      in->putBackWord(name.text());
      return true;
    }
    if (!field->read(in, name)) return false;
  }
}

bool QvFieldTable::readSpecification(QvSceneInput* in, QvNode* node) {
  QvAtom word;
  if (!in->readName(word, QvSceneInput::kLowerName)) return true;
  bool ok = true;
  if (named(word, "fields")) {
    ok = readFieldSpecs(in, node);
  } else if (named(word, "field")) {
    ok = readFieldSpec(in, node);
  } else {
    in->putBackWord(word.text());
  }
  if (!ok) theContext.readError(in, "Bad field specifications for node");
  return ok;
}

bool QvFieldTable::newFieldsAllowed(QvNode* node) const { return !node->isBuiltIn && fields_.empty(); }

bool QvFieldTable::createDeclaredField(QvNode* node, QvAtom typeName, QvAtom name) {
  if (name.isEmpty()) return false;
  QvField* field = createField(typeName);
  if (field == nullptr) return false;
  field->setContainer(node);
  addField(node, name, field);
  return true;
}

bool QvFieldTable::readFieldSpecs(QvSceneInput* in, QvNode* node) {
  char c;
  if (!in->readChar(c) || c != '[') return false;
  if (!in->readChar(c)) return false;
  if (c == ']') return true;
  in->putBackChar(c);
  bool newFields = newFieldsAllowed(node);
  for (;;) {
    QvAtom typeName;
    QvAtom name;
    if (!in->readName(typeName, QvSceneInput::kUpperName) || !in->readName(name, QvSceneInput::kLowerName)) {
      return false;
    }
    if (newFields && !createDeclaredField(node, typeName, name)) return false;
    if (!in->readChar(c)) return false;
    if (c == ']') return true;
    if (c != ',') return false;
    if (in->peekChar(']')) {
      in->readChar(c);
      return true;
    }
  }
}

bool QvFieldTable::readFieldSpec(QvSceneInput* in, QvNode* node) {
  QvAtom typeName;
  QvAtom name;
  if (!in->readName(typeName, QvSceneInput::kUpperName) || !in->readName(name, QvSceneInput::kLowerName)) {
    return false;
  }
  QvField* field = nullptr;
  if (newFieldsAllowed(node)) {
    if (!createDeclaredField(node, typeName, name)) return false;
    field = findField(node, name);
  } else {
    field = findField(node, name);
  }
  if (field == nullptr) return false;
  return field->read(in, name);
}

void QvFieldTable::writeSpecsAndValues(FILE* out, QvNode* node) {
  if (fields_.empty()) {
    std::fputs(" [ ]\n", out);
    return;
  }
  std::fputs(" [ ", out);
  for (size_t i = 0; i < fields_.size(); ++i) {
    QvField* field = getField(node, static_cast<int>(i));
    bool last = i + 1 == fields_.size();
    std::fprintf(out, last ? "%s %s ]\n" : "%s %s, ", field->getTypeName(), fields_[i].name.text());
  }
  for (size_t i = 0; i < fields_.size(); ++i) {
    theContext.writeIndented(out, "%s", fields_[i].name.text());
    getField(node, static_cast<int>(i))->write(out);
  }
}

}  // namespace lumeric
