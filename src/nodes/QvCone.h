// A cone along the y axis.
#ifndef LUMERIC_NODES_QVCONE_H
#define LUMERIC_NODES_QVCONE_H

#include "fields/QvSFBitMask.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvCone : public QvStandardNode<QvCone> {
 public:
  static constexpr const char* kClassName = "Cone";

  QvCone();

  QvSFBitMask parts;
  QvSFFloat bottomRadius;
  QvSFFloat height;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVCONE_H
