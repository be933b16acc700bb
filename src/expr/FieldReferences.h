// References to fields inside expressions: a field of the expression's own
// node, a variable declared in an enclosing node, or a field of a node with
// a DEF name.  Values come from the field itself (GetLumericValue); nothing
// is cached, so every reference sees the field as it is now.
#ifndef LUMERIC_EXPR_FIELDREFERENCES_H
#define LUMERIC_EXPR_FIELDREFERENCES_H

#include "core/QvAtom.h"

namespace lumeric {

class FieldExpression;
class QvField;
class QvNode;
struct Term;

// The field of that name in the node's own table; null when the node is null
// or has no such field.
QvField* findLocalField(QvNode* node, QvAtom name);
// The first such field walking out from the context's current node through
// the parent links.
QvField* findFieldInScope(QvAtom name);
// The field of the node most recently defined under `nodeName` in the DEF
// table of the current input.
QvField* findNodeField(const char* nodeName, const char* fieldName);
// The node most recently defined under `nodeName` there, or null.
QvNode* findNamedNode(const char* nodeName);

// The reference forms.  `first` and `second` are the index terms, null when
// not written; a non-scalar index posts "Cannot use a term as an index".
// Each returns the field's value, or posts its message at `at` and returns
// null.
//   name, name[i], name[i][j]: the owner's own field, else a field in scope.
Term* referToField(const char* name, Term* first, Term* second, FieldExpression* at);
//   :name, :name[i], :name[i][j]: a field in scope only.
Term* referToFieldInScope(const char* name, Term* first, Term* second, FieldExpression* at);
//   node:field, node:field[i], node:field[i][j].
Term* referToNodeField(const char* nodeName, const char* fieldName, Term* first, Term* second,
                       FieldExpression* at);

// The whole value of the node's own field `name` (for built-in functions
// that read a field of the expression's owner), or null after
// "Local Field %s not found" or "%s is not a valid element".
Term* localFieldValue(QvNode* node, const char* name, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FIELDREFERENCES_H
