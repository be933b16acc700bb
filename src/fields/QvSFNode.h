// SFNode: one name expression (a name, possibly joined from pieces); names
// are stored without quotation marks.
#ifndef LUMERIC_FIELDS_QVSFNODE_H
#define LUMERIC_FIELDS_QVSFNODE_H

#include "fields/CopyableField.h"
#include "fields/SFStringField.h"

namespace lumeric {

class QvSFNode;

struct QvSFNodeTraits {
  static constexpr const char* kTypeName = "SFNode";
  // Worded like the refusals of the number fields.
  static constexpr const char* kCannotSet = "Cannot set SFNode using this value";
  static constexpr const char* kBounds = "Bounds error: tried to access SFNode[%d]";
  static constexpr bool kQuoted = false;
  static StringTerm* evaluate(FieldExpression* expr) { return evaluateName(expr); }
};

extern template class SFStringField<QvSFNode, QvSFNodeTraits>;

class QvSFNode : public CopyableField<QvSFNode, SFStringField<QvSFNode, QvSFNodeTraits>> {};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFNODE_H
