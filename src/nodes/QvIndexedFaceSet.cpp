#include "nodes/QvIndexedFaceSet.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvIndexedFaceSet::QvIndexedFaceSet() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("coordIndex", coordIndex).setDefault(0);
  fields.add("materialIndex", materialIndex).setDefault(-1);
  fields.add("normalIndex", normalIndex).setDefault(-1);
  fields.add("textureCoordIndex", textureCoordIndex).setDefault(-1);
}

}  // namespace lumeric
