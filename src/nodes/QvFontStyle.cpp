#include "nodes/QvFontStyle.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvFontStyle::QvFontStyle() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("size", size).setDefault(10);
  fields.add("family", family).setDefault(0);  // SERIF
  fields.enumerate(family, "Family", {{"SERIF", 0}, {"SANS", 1}, {"TYPEWRITER", 2}});
  fields.add("style", style).setDefault(0);  // NONE
  fields.enumerate(style, "Style", {{"NONE", 0}, {"BOLD", 1}, {"ITALIC", 2}});
}

}  // namespace lumeric
