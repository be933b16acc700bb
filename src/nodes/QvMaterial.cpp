#include "nodes/QvMaterial.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvMaterial::QvMaterial() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("ambientColor", ambientColor).setDefault(0.2, 0.2, 0.2);
  fields.add("diffuseColor", diffuseColor).setDefault(0.8, 0.8, 0.8);
  fields.add("specularColor", specularColor).setDefault(0, 0, 0);
  fields.add("emissiveColor", emissiveColor).setDefault(0, 0, 0);
  fields.add("shininess", shininess).setDefault(0.2);
  fields.add("transparency", transparency).setDefault(0);
}

}  // namespace lumeric
