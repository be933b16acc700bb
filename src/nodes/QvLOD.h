// Levels of detail: one child is drawn, chosen by distance.
#ifndef LUMERIC_NODES_QVLOD_H
#define LUMERIC_NODES_QVLOD_H

#include "fields/QvMFFloat.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvLOD : public QvStandardNode<QvLOD, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "LOD";
  static constexpr BlankLine kBlankLine = BlankLine::kIfChildren;

  QvLOD();

  QvMFFloat range;
  QvSFVec3f center;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVLOD_H
