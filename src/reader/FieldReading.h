// Reading the fields of a node: the field specification a node body may
// begin with ("fields [ T n, ... ]" or "field T n v") and the field values
// that follow it, through the node's field table.
#ifndef LUMERIC_READER_FIELDREADING_H
#define LUMERIC_READER_FIELDREADING_H

namespace lumeric {

class QvAtom;
class QvField;
class QvNode;
class QvSceneInput;

// field->readValue, and on failure the message "Couldn't read value for
// field".
bool readFieldValue(QvSceneInput* in, QvField* field, QvAtom name);
// Field values after the opening brace: lower-case names, each followed by
// its value.  An unknown name is an error when `unknownIsError`, else it is
// given back for the children to follow.
bool readFieldValues(QvSceneInput* in, QvNode* node, bool unknownIsError);
// The step every node body begins with: "fields [...]", "field T n v", or
// nothing.  Reports "Bad field specifications for node" on failure.
bool readFieldSpecification(QvSceneInput* in, QvNode* node);

}  // namespace lumeric

#endif  // LUMERIC_READER_FIELDREADING_H
