// How the built-in functions and units talk to the user.  Every message of
// this folder goes through these two calls, so where and how they are posted
// is decided here alone.
#ifndef LUMERIC_EXPR_FUNCTIONS_FUNCTIONMESSAGES_H
#define LUMERIC_EXPR_FUNCTIONS_FUNCTIONMESSAGES_H

namespace lumeric {

class FieldExpression;
struct Term;

// Posts the error at the expression and returns null, so that a refusing
// function ends in one line: `return refuseCall(at, "...", x);`.
Term* refuseCall(FieldExpression* at, const char* format, ...) __attribute__((format(printf, 2, 3)));
// Posts the error at the expression; the evaluation goes on.
void reportAndGoOn(FieldExpression* at, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_FUNCTIONMESSAGES_H
