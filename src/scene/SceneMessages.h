// The context's message operations at a node or at a value expression: the
// place is the node's file and line, or the expression's line with the file
// of the node it belongs to.  A null node or expression gives no prefix.
// The reports return a Failure (false, or a null pointer), so that a failure
// path is one line: `return reportAtExpression(where, "...");`.
#ifndef LUMERIC_SCENE_SCENEMESSAGES_H
#define LUMERIC_SCENE_SCENEMESSAGES_H

#include "core/Failure.h"

namespace lumeric {

class FieldExpression;
class QvNode;

Failure reportAtNode(const QvNode* node, const char* format, ...) __attribute__((format(printf, 2, 3)));
void warnAtNode(const QvNode* node, const char* format, ...) __attribute__((format(printf, 2, 3)));
Failure reportAtExpression(const FieldExpression* expr, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
void warnAtExpression(const FieldExpression* expr, const char* format, ...) __attribute__((format(printf, 2, 3)));
// Posts `message` as it stands (it may contain '%') at `at`.  It returns
// nothing, for the operations of fields that return nothing, whose failure
// paths read the same way: `return reportAt(where, kCannotSet);`.
void reportAt(const FieldExpression* at, const char* message);

// `v` when it is a finite number; otherwise reports "Number is not finite"
// at `at` and gives 0, so that every written value loads.  Fields report at
// the expression a value came from, generators at themselves.
double finiteAt(double v, const FieldExpression* at);
double finiteAt(double v, const QvNode* at);

}  // namespace lumeric

#endif  // LUMERIC_SCENE_SCENEMESSAGES_H
