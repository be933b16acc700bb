#include "nodes/extensions/QvInclude.h"

#include <cstdio>

#include "core/FileAccess.h"
#include "core/QvContext.h"
#include "core/RunState.h"
#include "scene/FieldExpression.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "reader/QvSceneInput.h"
#include "scene/SceneMessages.h"

namespace lumeric {

bool QvInclude::readInstance(QvSceneInput* in) {
  if (!refuseFieldSpecification(in)) return false;
  FieldExpression nameText;
  if (!in->readValueText(nameText, this)) nameText.setText("");
  QvNode* root = includeFile(nameText, in);
  if (root != nullptr) addChild(root);
  return true;
}

QvNode* QvInclude::includeFile(FieldExpression& nameText, QvSceneInput* in) {
  const char* name = nameText.text() != nullptr ? nameText.text() : "";
  if (const char* refusal = confinementRefusal(name, false)) {
    return reportAtExpression(&nameText, "Cannot INCLUDE file %s - %s", name, refusal);
  }
  int errorNumber = 0;
  FILE* file = openForReading(name, errorNumber);
  if (file == nullptr) return reportAtExpression(&nameText, "Cannot open INCLUDE file %s", name);
  if (theRun.includedFiles != nullptr) theRun.includedFiles->push_back(name);
  if (!theContext.pushFile(name, file)) {
    std::fclose(file);
    return reportAtExpression(&nameText, "Cannot INCLUDE file %s - Files nested too deep", name);
  }
  auto saved = in->saveState();
  in->setFile(file);
  QvNode* root = nullptr;
  readScene(in, root);
  std::fclose(file);
  in->restoreState(std::move(saved));
  theContext.popFile();
  return root;
}

void QvInclude::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->evaluate(parentGroup, copy);
  }
}

void QvInclude::write(SceneWriter& out) {
  NodeVisit visit(this);
  writeChildren(out);
}

}  // namespace lumeric
