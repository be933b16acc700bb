// A group that keeps the changes its children make to itself.
#ifndef LUMERIC_NODES_QVSEPARATOR_H
#define LUMERIC_NODES_QVSEPARATOR_H

#include "fields/QvSFEnum.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvSeparator : public QvStandardNode<QvSeparator, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "Separator";
  static constexpr BlankLine kBlankLine = BlankLine::kIfChildren;

  QvSeparator();

  QvSFEnum renderCulling;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSEPARATOR_H
