#include "nodes/QvTranslation.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvTranslation::QvTranslation() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("translation", translation).setDefault(0, 0, 0);
}

}  // namespace lumeric
