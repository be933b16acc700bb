// A light shining from one point in all directions.
#ifndef LUMERIC_NODES_QVPOINTLIGHT_H
#define LUMERIC_NODES_QVPOINTLIGHT_H

#include "fields/QvSFBool.h"
#include "fields/QvSFColor.h"
#include "fields/QvSFFloat.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvPointLight : public QvStandardNode<QvPointLight> {
 public:
  static constexpr const char* kClassName = "PointLight";

  QvPointLight();

  QvSFBool on;
  QvSFFloat intensity;
  QvSFColor color;
  QvSFVec3f location;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVPOINTLIGHT_H
