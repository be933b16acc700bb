// Field values given from outside the scene (the command line's -D): after
// the scene is read and before it is evaluated, a field of a named node
// takes a value text as if the scene file had given it there.
#ifndef LUMERIC_DRIVER_FIELDOVERRIDES_H
#define LUMERIC_DRIVER_FIELDOVERRIDES_H

#include <string>
#include <vector>

namespace lumeric {

struct FieldOverride {
  std::string node;   // a DEF name
  std::string field;  // a field of that node
  std::string value;  // value text, as the scene file would give it
};

// Applies `overrides` in order, during a run, to the scene read so far.  The
// node is the one a reference by its name finds: the last one read under
// that name.  The value replaces the field's value (and an expression the
// file gave it); messages about it name the node's file and line.  Returns
// false at the first override that names no node, no field of the node, or
// a value that the field does not read whole, with `error` saying which.
bool applyFieldOverrides(const std::vector<FieldOverride>& overrides, std::string& error);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_FIELDOVERRIDES_H
