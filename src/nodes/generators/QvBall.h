// Ball: a sphere of the declared field radius at the declared field center,
// written as a Separator (named as the Ball) holding the Ball's children,
// a Translation and a Sphere.  The geometry is computed each time the Ball
// is written, from the values of that moment.
#ifndef LUMERIC_NODES_GENERATORS_QVBALL_H
#define LUMERIC_NODES_GENERATORS_QVBALL_H

#include "nodes/generators/QvGeneratorNode.h"

namespace lumeric {

class QvBall : public QvGeneratorNode<QvBall> {
 public:
  QvBall() = default;

  static constexpr const char* kClassName = "Ball";
  const char* getClassName() const override { return kClassName; }
  // Posts which of radius and center is not declared and writes nothing
  // then.  A center that is not three numbers leaves out the Translation,
  // a radius that is not one number the Sphere, without a message.
  void write(SceneWriter& out) override;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_QVBALL_H
