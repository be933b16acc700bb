// The font of the text nodes that follow.
#ifndef LUMERIC_NODES_QVFONTSTYLE_H
#define LUMERIC_NODES_QVFONTSTYLE_H

#include "fields/QvSFBitMask.h"
#include "fields/QvSFEnum.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvFontStyle : public QvStandardNode<QvFontStyle> {
 public:
  static constexpr const char* kClassName = "FontStyle";

  QvFontStyle();

  QvSFFloat size;
  QvSFEnum family;
  QvSFBitMask style;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVFONTSTYLE_H
