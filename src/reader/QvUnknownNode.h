// A node whose class the reader does not know but whose body declares its
// fields ("fields [ ... ]").  It keeps its class name and its own field
// table and is written back in the same form, so that a VRML 1.0 reader
// can read it again.
#ifndef LUMERIC_READER_QVUNKNOWNNODE_H
#define LUMERIC_READER_QVUNKNOWNNODE_H

#include <memory>
#include <string>

#include "scene/QvDeclaredFieldsNode.h"

namespace lumeric {

class QvUnknownNode : public QvDeclaredFieldsNode {
 public:
  explicit QvUnknownNode(QvAtom className);

  const char* getClassName() const override { return className_.c_str(); }
  void write(SceneWriter& out) override;
  bool readInstance(QvSceneInput* in) override;

 protected:
  // A node of the same class holding evaluated clones of the fields, under
  // the same names and in the same order.
  QvNode* newInstance() override;

 private:
  std::string className_;
};

}  // namespace lumeric

#endif  // LUMERIC_READER_QVUNKNOWNNODE_H
