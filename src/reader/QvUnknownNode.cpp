#include "reader/QvUnknownNode.h"

#include "driver/LibraryState.h"
#include "driver/QvContext.h"
#include "reader/NodeFrame.h"
#include "reader/QvField.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

QvUnknownNode::QvUnknownNode(QvAtom className) : className_(className.text()) {}

QvNode* QvUnknownNode::newInstance() {
  QvUnknownNode* duplicate = new QvUnknownNode(QvAtom(className_.c_str()));
  cloneDeclaredFieldsInto(duplicate);
  return duplicate;
}

void QvUnknownNode::write(FILE* out) {
  writeOpeningLine(out, this, className_.c_str());
  parent = theContext.topNode();
  theContext.pushNode(this);
  ++theContext.indentLevel;
  theContext.writeIndented(out, "fields");
  declaredFields.writeSpecsAndValues(out, this);
  std::fputs("\n", out);
  writeChildren(out);
  --theContext.indentLevel;
  theContext.popNode();
  writeClosingLine(out);
}

}  // namespace lumeric
