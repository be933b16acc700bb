// Information text that draws nothing.
#ifndef LUMERIC_NODES_QVINFO_H
#define LUMERIC_NODES_QVINFO_H

#include "fields/QvSFString.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvInfo : public QvStandardNode<QvInfo> {
 public:
  static constexpr const char* kClassName = "Info";

  QvInfo();

  QvSFString string;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVINFO_H
