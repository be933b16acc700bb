// The plain group: its children, in order.
#ifndef LUMERIC_NODES_QVGROUP_H
#define LUMERIC_NODES_QVGROUP_H

#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvGroup : public QvStandardNode<QvGroup, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "Group";
  static constexpr BlankLine kBlankLine = BlankLine::kNever;

  QvGroup();
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVGROUP_H
