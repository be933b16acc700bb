#include "nodes/extensions/QvParameters.h"

#include "nodes/QvGroup.h"
#include "reader/NodeReader.h"
#include "scene/CopyBudget.h"
#include "scene/NodeVisit.h"

namespace lumeric {

void QvParameters::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  if (!copy) return evaluateChildren(this, false);
  if (!admitCopy(this)) return;
  QvGroup* group = new QvGroup();
  NodeRef keep(group);
  // The group takes the name and line; this node's table owns its fields,
  // so nothing else is copied.
  initCopy(group);
  if (parentGroup != nullptr) parentGroup->addChild(group);
  evaluateChildren(group, true);
}

bool QvParameters::readInstance(QvSceneInput* in) { return readGroupBody(in, this); }

void QvParameters::write(SceneWriter& out) {
  NodeVisit visit(this);
  writeChildren(out);
}

}  // namespace lumeric
