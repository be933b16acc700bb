#include "nodes/QvIndexedLineSet.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvIndexedLineSet::QvIndexedLineSet() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("coordIndex", coordIndex).setDefault(0);
  fields.add("materialIndex", materialIndex).setDefault(-1);
  fields.add("normalIndex", normalIndex).setDefault(-1);
  fields.add("textureCoordIndex", textureCoordIndex).setDefault(-1);
}

}  // namespace lumeric
