#include "nodes/QvWWWAnchor.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvWWWAnchor::QvWWWAnchor() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("name", name).setDefault("");
  fields.add("description", description).setDefault("");
  fields.add("map", map).setDefault(0);  // NONE
  fields.enumerate(map, "Map", {{"NONE", 0}, {"POINT", 1}});
}

}  // namespace lumeric
