// Polygons over the current coordinates.
#ifndef LUMERIC_NODES_QVINDEXEDFACESET_H
#define LUMERIC_NODES_QVINDEXEDFACESET_H

#include "fields/QvMFLong.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvIndexedFaceSet : public QvStandardNode<QvIndexedFaceSet> {
 public:
  static constexpr const char* kClassName = "IndexedFaceSet";

  QvIndexedFaceSet();

  QvMFLong coordIndex;
  QvMFLong materialIndex;
  QvMFLong normalIndex;
  QvMFLong textureCoordIndex;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVINDEXEDFACESET_H
