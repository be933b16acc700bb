// The current texture, from a file or an inline image.
#ifndef LUMERIC_NODES_QVTEXTURE2_H
#define LUMERIC_NODES_QVTEXTURE2_H

#include "fields/QvSFEnum.h"
#include "fields/QvSFImage.h"
#include "fields/QvSFString.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTexture2 : public QvStandardNode<QvTexture2> {
 public:
  static constexpr const char* kClassName = "Texture2";

  QvTexture2();

  QvSFString filename;
  QvSFImage image;
  QvSFEnum wrapS;
  QvSFEnum wrapT;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTEXTURE2_H
