#include "nodes/QvWWWAnchor.h"

#include "nodes/QvFieldRegistrar.h"

namespace lumeric {

QvWWWAnchor::QvWWWAnchor() {
  QvFieldRegistrar fields(this, nodeClass());
  fields.add("name", name).setDefault("");
  fields.add("description", description).setDefault("");
  fields.add("map", map).setDefault(0);  // NONE
  fields.enumerate(map, "Map", {{"NONE", 0}, {"POINT", 1}});
}

}  // namespace lumeric
