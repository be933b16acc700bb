// The statements that may stand as a whole expression text: SET, APPEND and
// DECLARE, each addressing a field as node:field.  Their messages never fail
// the parse; the statement then simply does nothing.
#ifndef LUMERIC_EXPR_FIELDASSIGNMENTS_H
#define LUMERIC_EXPR_FIELDASSIGNMENTS_H

namespace lumeric {

class FieldExpression;
struct Term;

// SET node:field value, SET node:field[i] value, SET node:field[i][j] value.
// `first` and `second` are the index terms, null when not written; a
// non-scalar index posts "Scaler index value expected".
void setFieldValue(const char* nodeName, const char* fieldName, Term* first, Term* second, Term* value,
                   FieldExpression* at);
// APPEND node:field value.
void appendFieldValue(const char* nodeName, const char* fieldName, Term* value, FieldExpression* at);
// DECLARE node:field (count, growBy) or DECLARE node:field count: reserves
// room in the field.
void declareField(const char* nodeName, const char* fieldName, Term* value, FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FIELDASSIGNMENTS_H
