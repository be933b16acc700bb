#include "nodes/QvIndexedLineSet.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvIndexedLineSet::QvIndexedLineSet() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("coordIndex", coordIndex).setDefault(0);
  fields.add("materialIndex", materialIndex).setDefault(-1);
  fields.add("normalIndex", normalIndex).setDefault(-1);
  fields.add("textureCoordIndex", textureCoordIndex).setDefault(-1);
}

}  // namespace lumeric
