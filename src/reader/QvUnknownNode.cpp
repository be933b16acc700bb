#include "reader/QvUnknownNode.h"

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "reader/NodeFrame.h"
#include "reader/QvField.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

QvUnknownNode::QvUnknownNode(QvAtom className) : className_(className.text()) { isBuiltIn = 0; }

QvNode* QvUnknownNode::newInstance() {
  QvUnknownNode* duplicate = new QvUnknownNode(QvAtom(className_.c_str()));
  for (int i = 0; i < fields_.getNumFields(); ++i) {
    QvField* field = fields_.getField(this, i)->clone();
    field->setContainer(duplicate);
    duplicate->fields_.addField(duplicate, fields_.getFieldName(i), field);
  }
  return duplicate;
}

void QvUnknownNode::write(FILE* out) {
  writeOpeningLine(out, this, className_.c_str());
  parent = theContext.topNode();
  theContext.pushNode(this);
  ++theContext.indentLevel;
  theContext.writeIndented(out, "fields");
  fields_.writeSpecsAndValues(out, this);
  std::fputs("\n", out);
  writeChildren(out);
  --theContext.indentLevel;
  theContext.popNode();
  writeClosingLine(out);
}

}  // namespace lumeric
