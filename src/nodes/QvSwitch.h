// A group of which a viewer draws one child, none or all.
#ifndef LUMERIC_NODES_QVSWITCH_H
#define LUMERIC_NODES_QVSWITCH_H

#include "fields/QvSFLong.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvSwitch : public QvStandardNode<QvSwitch, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "Switch";
  static constexpr BlankLine kBlankLine = BlankLine::kIfChildren;

  QvSwitch();

  QvSFLong whichChild;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSWITCH_H
