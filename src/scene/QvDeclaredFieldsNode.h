// The base of the group nodes whose fields are declared in the scene file
// rather than by their class (PARAMETERS, LOOP, SELECT, the generators and
// nodes of unknown class).  The node owns `declaredFields`, which its
// "fields [ ... ]" specification fills; a class looks up the fields it
// needs by name and states only its own passes.
#ifndef LUMERIC_SCENE_QVDECLAREDFIELDSNODE_H
#define LUMERIC_SCENE_QVDECLAREDFIELDSNODE_H

#include "scene/QvFieldTable.h"
#include "scene/QvGroupNode.h"

namespace lumeric {

class QvField;

class QvDeclaredFieldsNode : public QvGroupNode {
 public:
  // The declared fields die before the children the group holds.
  ~QvDeclaredFieldsNode() override;

  QvFieldTable* getFieldTable() override { return &declaredFields; }

  // The first declared field named `name`, or null.
  QvField* findDeclaredField(const char* fieldName);

  QvFieldTable declaredFields{true};

 protected:
  // isBuiltIn is false: the group reader accepts the fields specification.
  QvDeclaredFieldsNode() { isBuiltIn = 0; }

  // Adds to `copy` evaluated clones of every declared field, under the
  // same names and in the same order.
  void cloneDeclaredFieldsInto(QvDeclaredFieldsNode* copy);
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVDECLAREDFIELDSNODE_H
