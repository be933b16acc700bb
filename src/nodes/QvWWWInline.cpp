#include "nodes/QvWWWInline.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvWWWInline::QvWWWInline() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("name", name).setDefault("");
  fields.add("bboxSize", bboxSize).setDefault(0, 0, 0);
  fields.add("bboxCenter", bboxCenter).setDefault(0, 0, 0);
}

}  // namespace lumeric
