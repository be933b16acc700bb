#include "nodes/QvAsciiText.h"

#include "nodes/FieldRegistrar.h"

namespace lumeric {

QvAsciiText::QvAsciiText() {
  FieldRegistrar fields(this, nodeClass());
  fields.add("string", string).setDefault("");
  fields.add("spacing", spacing).setDefault(1);
  fields.add("justification", justification).setDefault(0);  // LEFT
  fields.enumerate(justification, "Justification", {{"LEFT", 0}, {"CENTER", 1}, {"RIGHT", 2}});
  fields.add("width", width).setDefault(0);
}

}  // namespace lumeric
