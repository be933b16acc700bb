#include "scene/QvNode.h"

#include <string>

#include "core/CharacterClasses.h"
#include "core/LastingState.h"
#include "core/RunState.h"
#include "scene/FieldExpression.h"
#include "scene/NodeVisit.h"
#include "scene/CopyBudget.h"
#include "scene/DefTable.h"
#include "scene/QvField.h"
#include "scene/QvFieldTable.h"
#include "scene/QvGroupNode.h"
#include "scene/SceneMessages.h"
#include "scene/SceneOperations.h"
#include "writer/SceneWriter.h"

namespace lumeric {

QvNode::~QvNode() {
  if (!name.isEmpty()) removeName(this, name, &registrySlot);
  delete nameExpression;
}

void QvNode::unref() {
  if (--refCount <= 0) delete this;
}

void QvNode::bindParents() { parent = theNodeStack.top(); }

void QvNode::check() {}

bool QvNode::hasName() const { return nameExpression != nullptr || !name.isEmpty(); }

namespace {

// A legal name starts with a name character that is not a digit and goes
// on with name characters.  Anything else is repaired: "_" in front when
// the first character cannot start a name, "_" for every character that
// cannot be part of one.
std::string repairName(const char* text) {
  std::string repaired;
  if (text[0] != '\0' && !isNameStart(text[0])) repaired += '_';
  for (const char* p = text; *p != '\0'; ++p) repaired += isNameChar(*p) ? *p : '_';
  return repaired;
}

}  // namespace

const char* QvNode::evaluatedName() {
  if (nameExpression == nullptr) return name.text();
  return sceneOperations().evaluateNameText(nameExpression);
}

const char* QvNode::getName() {
  if (nameExpression == nullptr) return name.text();
  // A computed name is written repaired like any name a node is given, so
  // that the node and its copies carry the same legal name.
  const char* computed = evaluatedName();
  if (computed == nullptr) return nullptr;
  return QvAtom(repairName(computed).c_str()).text();
}

void QvNode::setName(QvAtom newName, bool nameWasDefined) {
  if (!name.isEmpty()) {
    removeName(this, name, &registrySlot);
    name = QvAtom();
  }
  std::string repaired = repairName(newName.text());
  name = repaired == newName.text() ? newName : QvAtom(repaired.c_str());
  if (warningsEnabled(kWarnDuplicateNames) && !name.isEmpty() && nameWasDefined) {
    warnAtNode(this, "Warning: Duplicate node name \"%s\" found", name.text());
  }
  if (!name.isEmpty()) addName(this, name, &registrySlot);
}

void QvNode::setNameExpression(FieldExpression* expression) {
  delete nameExpression;
  nameExpression = expression;
}

void QvNode::copyPlaceInto(QvNode* copy) const {
  copy->line = line;
  copy->fileName = fileName;
  copy->isCopy = true;
}

void QvNode::initCopy(QvNode* copy) {
  copyPlaceInto(copy);
  if (hasName()) {
    // The copy is found under the name as computed (the text a name
    // expression elsewhere builds); only its own name is repaired.
    const char* copyName = evaluatedName();
    if (copyName != nullptr && theRun.defNames != nullptr) theRun.defNames->addName(QvAtom(copyName), copy);
  }
  QvFieldTable* table = getFieldTable();
  if (table == nullptr || table->ownsFields()) return;
  for (int i = 0; i < table->getNumFields(); ++i) {
    table->getField(copy, i)->copyValueFrom(table->getField(this, i));
  }
}

void QvNode::evaluateLeaf(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  if (copy && admitCopy(this)) {
    QvNode* duplicate = newInstance();
    if (duplicate != nullptr) {
      initCopy(duplicate);
      if (parentGroup != nullptr) {
        parentGroup->addChild(duplicate);
      } else {
        duplicate->ref();
        duplicate->unref();
      }
    }
  }
}

void QvNode::writeFields(SceneWriter& out) {
  QvFieldTable* table = getFieldTable();
  if (table != nullptr) table->writeFieldLines(out, this);
}

void QvNode::checkFields() {
  QvFieldTable* table = getFieldTable();
  if (table == nullptr) return;
  for (int i = 0; i < table->getNumFields(); ++i) table->getField(this, i)->check();
}

}  // namespace lumeric
