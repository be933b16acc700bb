#include "reader/QvUnknownNode.h"

#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "writer/SceneWriter.h"

namespace lumeric {

QvUnknownNode::QvUnknownNode(QvAtom className) : className_(className.text()) {}

QvNode* QvUnknownNode::newInstance() {
  QvUnknownNode* duplicate = new QvUnknownNode(QvAtom(className_.c_str()));
  cloneDeclaredFieldsInto(duplicate);
  return duplicate;
}

void QvUnknownNode::write(SceneWriter& out) {
  out.openNode(writtenName(), className_.c_str());
  {
    NodeVisit visit(this);
    out.indentation().text("fields");
    declaredFields.writeSpecsAndValues(out, this);
    out.character('\n');
    writeChildren(out);
  }
  out.closeNode();
}

bool QvUnknownNode::readInstance(QvSceneInput* in) { return readGroupBody(in, this); }

}  // namespace lumeric
