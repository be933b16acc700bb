// Polylines over the current coordinates.
#ifndef LUMERIC_NODES_QVINDEXEDLINESET_H
#define LUMERIC_NODES_QVINDEXEDLINESET_H

#include "fields/QvMFLong.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvIndexedLineSet : public QvStandardNode<QvIndexedLineSet> {
 public:
  static constexpr const char* kClassName = "IndexedLineSet";

  QvIndexedLineSet();

  QvMFLong coordIndex;
  QvMFLong materialIndex;
  QvMFLong normalIndex;
  QvMFLong textureCoordIndex;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVINDEXEDLINESET_H
