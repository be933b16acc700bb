// A light cone from one point.
#ifndef LUMERIC_NODES_QVSPOTLIGHT_H
#define LUMERIC_NODES_QVSPOTLIGHT_H

#include "fields/QvSFBool.h"
#include "fields/QvSFColor.h"
#include "fields/QvSFFloat.h"
#include "fields/QvSFVec3f.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvSpotLight : public QvStandardNode<QvSpotLight> {
 public:
  static constexpr const char* kClassName = "SpotLight";

  QvSpotLight();

  QvSFBool on;
  QvSFFloat intensity;
  QvSFColor color;
  QvSFVec3f location;
  QvSFVec3f direction;
  QvSFFloat dropOffRate;
  QvSFFloat cutOffAngle;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVSPOTLIGHT_H
