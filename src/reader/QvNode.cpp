#include "reader/QvNode.h"

#include <string>

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "expr/Evaluation.h"
#include "lumeric/lumeric.h"
#include "reader/FieldExpression.h"
#include "reader/QvField.h"
#include "reader/QvFieldTable.h"
#include "reader/QvGroupNode.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

QvNode::~QvNode() {
  if (!name.isEmpty()) removeName(this, name.text());
  delete nameExpression;
}

void QvNode::unref() {
  if (--refCount <= 0) delete this;
}

void QvNode::bindParents() { parent = theContext.topNode(); }

void QvNode::check() {}

bool QvNode::readInstance(QvSceneInput* in) {
  QvFieldTable* table = getFieldTable();
  if (table == nullptr) return true;
  if (!table->readSpecification(in, this)) return false;
  return table->readFieldValues(in, this, true);
}

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

const char* QvNode::getName() {
  if (nameExpression == nullptr) return name.text();
  // A computed name is repaired like any name a node is given, so that the
  // node and its copies carry the same legal name.
  StringTerm* computed = evaluateName(nameExpression);
  if (computed == nullptr || computed->text == nullptr) return nullptr;
  return QvAtom(repairName(computed->text).c_str()).text();
}

void QvNode::setName(QvAtom newName, bool nameWasDefined) {
  if (!name.isEmpty()) {
    removeName(this, name.text());
    name = QvAtom();
  }
  std::string repaired = repairName(newName.text());
  name = repaired == newName.text() ? newName : QvAtom(repaired.c_str());
  if ((gWarn & 4) != 0 && !name.isEmpty() && nameWasDefined) {
    theContext.warnAtNode(this, "Warning: Duplicate node name \"%s\" found", name.text());
  }
  if (!name.isEmpty()) addName(this, name.text());
}

void QvNode::setNameExpression(FieldExpression* expression) {
  delete nameExpression;
  nameExpression = expression;
}

void QvNode::initCopy(QvNode* copy) {
  copy->line = line;
  if (hasName()) {
    const char* copyName = getName();
    if (copyName != nullptr && currentInput != nullptr) currentInput->addName(QvAtom(copyName), copy);
  }
  QvFieldTable* table = getFieldTable();
  if (table == nullptr || table->ownsFields()) return;
  for (int i = 0; i < table->getNumFields(); ++i) {
    table->getField(copy, i)->copyValueFrom(table->getField(this, i));
  }
}

void QvNode::evaluateLeaf(QvGroupNode* parentGroup, bool copy) {
  parent = theContext.topNode();
  theContext.pushNode(this);
  if (copy) {
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
  theContext.popNode();
}

void QvNode::checkFields() {
  QvFieldTable* table = getFieldTable();
  if (table == nullptr) return;
  for (int i = 0; i < table->getNumFields(); ++i) table->getField(this, i)->check();
}

}  // namespace lumeric
