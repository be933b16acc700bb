// A light shining in one direction.
#ifndef LUMERIC_NODES_QVDIRECTIONALLIGHT_H
#define LUMERIC_NODES_QVDIRECTIONALLIGHT_H

#include "fields/QvSFBool.h"
#include "fields/QvSFColor.h"
#include "fields/QvSFFloat.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvDirectionalLight : public QvStandardNode<QvDirectionalLight> {
 public:
  static constexpr const char* kClassName = "DirectionalLight";

  QvDirectionalLight();

  QvSFBool on;
  QvSFFloat intensity;
  QvSFColor color;
  QvSFVec3f direction;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVDIRECTIONALLIGHT_H
