// The current surface material.
#ifndef LUMERIC_NODES_QVMATERIAL_H
#define LUMERIC_NODES_QVMATERIAL_H

#include "fields/QvMFColor.h"
#include "fields/QvMFFloat.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvMaterial : public QvStandardNode<QvMaterial> {
 public:
  static constexpr const char* kClassName = "Material";

  QvMaterial();

  QvMFColor ambientColor;
  QvMFColor diffuseColor;
  QvMFColor specularColor;
  QvMFColor emissiveColor;
  QvMFFloat shininess;
  QvMFFloat transparency;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVMATERIAL_H
