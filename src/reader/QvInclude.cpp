#include "reader/QvInclude.h"

#include <cstdio>

#include "driver/QvContext.h"
#include "reader/FieldExpression.h"
#include "reader/NodeReader.h"
#include "reader/QvSceneInput.h"

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
  FILE* file = std::fopen(name, "r");
  if (file == nullptr) {
    theContext.reportAtExpression(&nameText, "Cannot open INCLUDE file %s", name);
    return nullptr;
  }
  if (!theContext.pushFile(name)) {
    std::fclose(file);
    theContext.reportAtExpression(&nameText, "Cannot INCLUDE file %s - Files nested too deep", name);
    return nullptr;
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
  parent = theContext.topNode();
  theContext.pushNode(this);
  for (int i = 0; i < children.getLength(); ++i) {
    QvNode* child = children.get(i);
    if (child != nullptr) child->evaluate(parentGroup, copy);
  }
  theContext.popNode();
}

void QvInclude::write(FILE* out) {
  parent = theContext.topNode();
  theContext.pushNode(this);
  writeChildren(out);
  theContext.popNode();
}

}  // namespace lumeric
