#include "nodes/extensions/QvParameters.h"

#include "nodes/QvGroup.h"
#include "nodes/extensions/NodeVisit.h"

namespace lumeric {

void QvParameters::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  if (!copy) return evaluateChildren(this, false);
  QvGroup* group = new QvGroup();
  QvNodeRef keep(group);
  // The group takes the name and line; this node's table owns its fields,
  // so nothing else is copied.
  initCopy(group);
  if (parentGroup != nullptr) parentGroup->addChild(group);
  evaluateChildren(group, true);
}

void QvParameters::write(FILE* out) {
  NodeVisit visit(this);
  writeChildren(out);
}

}  // namespace lumeric
