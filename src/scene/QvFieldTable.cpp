#include "scene/QvFieldTable.h"

#include <cstring>
#include <string>

#include "core/CharacterClasses.h"
#include "scene/QvField.h"
#include "scene/QvNode.h"
#include "scene/SceneOperations.h"
#include "writer/SceneWriter.h"

namespace lumeric {

namespace {

// Enumeration names are entered without surrounding white space.
QvAtom trimmedAtom(const char* text) {
  while (*text != '\0' && isSceneSpace(*text)) ++text;
  size_t length = std::strlen(text);
  while (length > 0 && isSceneSpace(text[length - 1])) --length;
  return QvAtom(text, length);
}

}  // namespace

QvFieldTable::~QvFieldTable() {
  if (ownsFields_) {
    for (Entry& entry : fields_) delete entry.field;
  }
  while (enums_ != nullptr) {
    Enumeration* next = enums_->next;
    delete enums_;
    enums_ = next;
  }
}

void QvFieldTable::addField(QvNode* node, const char* name, QvField* field) { addField(node, QvAtom(name), field); }

void QvFieldTable::addField(QvNode* node, QvAtom name, QvField* field) {
  Entry entry;
  entry.name = name;
  if (ownsFields_) {
    entry.field = field;
  } else {
    entry.offset = reinterpret_cast<char*>(field) - reinterpret_cast<char*>(node);
  }
  fields_.push_back(entry);
}

void QvFieldTable::addEnumValue(const char* typeName, const char* valueName, int value) {
  QvAtom type = trimmedAtom(typeName);
  Enumeration* target = enums_;
  while (target != nullptr && target->typeName != type) target = target->next;
  if (target == nullptr) {
    target = new Enumeration{type, {}, {}, enums_};
    target->values.reserve(6);
    target->names.reserve(6);
    enums_ = target;
  }
  target->values.push_back(value);
  target->names.push_back(trimmedAtom(valueName));
}

void QvFieldTable::getEnumData(const char* typeName, int& count, const int*& values, const QvAtom*& names) const {
  QvAtom type = trimmedAtom(typeName);
  for (const Enumeration* enumeration = enums_; enumeration != nullptr; enumeration = enumeration->next) {
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

QvField* QvFieldTable::findField(QvNode* node, const char* name) const {
  for (size_t i = 0; i < fields_.size(); ++i) {
    if (fields_[i].name.named(name)) return getField(node, static_cast<int>(i));
  }
  return nullptr;
}

bool QvFieldTable::newFieldsAllowed(QvNode* node) const { return !node->isBuiltIn && fields_.empty(); }

bool QvFieldTable::createDeclaredField(QvNode* node, QvAtom typeName, QvAtom name) {
  if (name.isEmpty()) return false;
  QvField* field = sceneOperations().createField(typeName);
  if (field == nullptr) return false;
  field->setContainer(node);
  addField(node, name, field);
  return true;
}

void QvFieldTable::writeFieldLines(SceneWriter& out, QvNode* node) {
  for (size_t i = 0; i < fields_.size(); ++i) {
    out.indentation().text(fields_[i].name.text());
    getField(node, static_cast<int>(i))->write(out);
  }
}

void QvFieldTable::writeSpecsAndValues(SceneWriter& out, QvNode* node) {
  out.list(getNumFields(), kOneLine, [&](int i) {
    out.text(getField(node, i)->getTypeName()).character(' ').text(fields_[static_cast<size_t>(i)].name.text());
  });
  writeFieldLines(out, node);
}

}  // namespace lumeric
