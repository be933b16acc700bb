// A group that keeps the transformations its children make to itself.
#ifndef LUMERIC_NODES_QVTRANSFORMSEPARATOR_H
#define LUMERIC_NODES_QVTRANSFORMSEPARATOR_H

#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTransformSeparator : public QvStandardNode<QvTransformSeparator, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "TransformSeparator";
  static constexpr BlankLine kBlankLine = BlankLine::kNever;

  QvTransformSeparator();
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTRANSFORMSEPARATOR_H
