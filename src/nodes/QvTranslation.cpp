#include "nodes/QvTranslation.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvTranslation::QvTranslation() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("translation", translation).setDefault(0, 0, 0);
}

}  // namespace lumeric
