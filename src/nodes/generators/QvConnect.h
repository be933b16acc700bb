// Connect: a cylinder of the declared field radius joining the centers of
// the two nodes whose DEF names the declared string fields first and second
// hold (normally two Balls, before or after the Connect in the file).  It
// is written as a Separator (named as the Connect) holding the children, a
// Transform that moves the cylinder's axis onto the segment, and the
// Cylinder.  The ends are looked up each time the Connect is written.
#ifndef LUMERIC_NODES_GENERATORS_QVCONNECT_H
#define LUMERIC_NODES_GENERATORS_QVCONNECT_H

#include "nodes/generators/QvGeneratorNode.h"

namespace lumeric {

class QvConnect : public QvGeneratorNode<QvConnect> {
 public:
  QvConnect() = default;

  static constexpr const char* kClassName = "Connect";
  const char* getClassName() const override { return kClassName; }
  // Posts every reference that fails, then each end or radius that is
  // missing, and writes nothing then; values of the wrong kind write
  // nothing silently; two equal ends are reported and write nothing.
  void write(SceneWriter& out) override;

 private:
  // The center field of the node named by `reference`'s string, or null
  // after posting why there is none.
  QvField* endCenter(QvField* reference, const char* invalidMessage);
  // The Separator with the children, the Transform and the Cylinder.
  void writeCylinderBetween(SceneWriter& out, const double a[3], const double b[3], double radius);
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_QVCONNECT_H
