// A group whose children are read from a URL.
#ifndef LUMERIC_NODES_QVWWWINLINE_H
#define LUMERIC_NODES_QVWWWINLINE_H

#include "fields/QvSFString.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvWWWInline : public QvStandardNode<QvWWWInline, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "WWWInline";
  static constexpr BlankLine kBlankLine = BlankLine::kAlways;

  QvWWWInline();

  QvSFString name;
  QvSFVec3f bboxSize;
  QvSFVec3f bboxCenter;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVWWWINLINE_H
