// The field factory: a new field from its type name, for the fields a node
// declares in the file with "fields [ ... ]" or "field".
#ifndef LUMERIC_FIELDS_FIELDFACTORY_H
#define LUMERIC_FIELDS_FIELDFACTORY_H

namespace lumeric {

class QvAtom;
class QvField;

// A new field of the named type (one of the 21 type names), or null.  The
// caller owns it.
QvField* createField(QvAtom typeName);

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_FIELDFACTORY_H
