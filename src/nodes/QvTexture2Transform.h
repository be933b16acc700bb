// A transformation of texture coordinates.
#ifndef LUMERIC_NODES_QVTEXTURE2TRANSFORM_H
#define LUMERIC_NODES_QVTEXTURE2TRANSFORM_H

#include "fields/QvSFFloat.h"
#include "fields/QvSFVec2f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTexture2Transform : public QvStandardNode<QvTexture2Transform> {
 public:
  static constexpr const char* kClassName = "Texture2Transform";

  QvTexture2Transform();

  QvSFVec2f translation;
  QvSFFloat rotation;
  QvSFVec2f scaleFactor;
  QvSFVec2f center;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTEXTURE2TRANSFORM_H
