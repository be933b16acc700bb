#include "nodes/QvTexture2.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvTexture2::QvTexture2() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("filename", filename).setDefault("");
  fields.add("image", image);
  fields.add("wrapS", wrapS).setDefault(0);  // REPEAT
  fields.enumerate(wrapS, "Wrap", {{"REPEAT", 0}, {"CLAMP", 1}});
  fields.add("wrapT", wrapT).setDefault(0);  // REPEAT
  fields.enumerate(wrapT, "Wrap", {{"REPEAT", 0}, {"CLAMP", 1}});
}

}  // namespace lumeric
