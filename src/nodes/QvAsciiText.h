// A string of text, drawn in the current font style.
#ifndef LUMERIC_NODES_QVASCIITEXT_H
#define LUMERIC_NODES_QVASCIITEXT_H

#include "fields/QvMFFloat.h"
#include "fields/QvMFString.h"
#include "fields/QvSFEnum.h"
#include "fields/QvSFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvAsciiText : public QvStandardNode<QvAsciiText> {
 public:
  static constexpr const char* kClassName = "AsciiText";

  QvAsciiText();

  QvMFString string;
  QvSFFloat spacing;
  QvSFEnum justification;
  QvMFFloat width;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVASCIITEXT_H
