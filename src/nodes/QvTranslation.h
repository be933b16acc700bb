// A translation of the following nodes.
#ifndef LUMERIC_NODES_QVTRANSLATION_H
#define LUMERIC_NODES_QVTRANSLATION_H

#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvTranslation : public QvStandardNode<QvTranslation> {
 public:
  static constexpr const char* kClassName = "Translation";

  QvTranslation();

  QvSFVec3f translation;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVTRANSLATION_H
