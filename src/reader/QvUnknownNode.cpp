#include "reader/QvUnknownNode.h"

#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "writer/SceneWriter.h"

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

void QvUnknownNode::write(SceneWriter& out) {
  out.openNode(writtenName(), className_.c_str());
  {
    NodeVisit visit(this);
    out.indentation().text("fields");
    fields_.writeSpecsAndValues(out, this);
    out.character('\n');
    writeChildren(out);
  }
  out.closeNode();
}

bool QvUnknownNode::readInstance(QvSceneInput* in) { return readGroupBody(in, this); }

}  // namespace lumeric
