#include "nodes/QvNormalBinding.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvNormalBinding::QvNormalBinding() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("value", value).setDefault(0);  // DEFAULT
  fields.enumerate(value, "Binding", {{"DEFAULT", 0}, {"OVERALL", 1}, {"PER_PART", 2}, {"PER_PART_INDEXED", 3}, {"PER_FACE", 4}, {"PER_FACE_INDEXED", 5}, {"PER_VERTEX", 6}, {"PER_VERTEX_INDEXED", 7}});
}

}  // namespace lumeric
