// The current list of texture coordinates.
#ifndef LUMERIC_NODES_QVTEXTURECOORDINATE2_H
#define LUMERIC_NODES_QVTEXTURECOORDINATE2_H

#include "fields/QvMFVec2f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTextureCoordinate2 : public QvStandardNode<QvTextureCoordinate2> {
 public:
  static constexpr const char* kClassName = "TextureCoordinate2";

  QvTextureCoordinate2();

  QvMFVec2f point;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTEXTURECOORDINATE2_H
