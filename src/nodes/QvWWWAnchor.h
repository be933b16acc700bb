// A group whose children link to a URL.
#ifndef LUMERIC_NODES_QVWWWANCHOR_H
#define LUMERIC_NODES_QVWWWANCHOR_H

#include "fields/QvSFEnum.h"
#include "fields/QvSFString.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvWWWAnchor : public QvStandardNode<QvWWWAnchor, QvGroupNode> {
 public:
  static constexpr const char* kClassName = "WWWAnchor";
  static constexpr BlankLine kBlankLine = BlankLine::kAlways;

  QvWWWAnchor();

  QvSFString name;
  QvSFString description;
  QvSFEnum map;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVWWWANCHOR_H
