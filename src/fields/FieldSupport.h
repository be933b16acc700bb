// Small operations every field type is built from: evaluating a component
// with its fallback, storing numbers and strings back as text, and making
// result terms.  Fields write through the SceneWriter and post through
// scene/SceneMessages.h, both included here for every field type.
#ifndef LUMERIC_FIELDS_FIELDSUPPORT_H
#define LUMERIC_FIELDS_FIELDSUPPORT_H

#include <cstddef>

#include "core/DecimalText.h"
#include "expr/Evaluation.h"
#include "expr/Term.h"
#include "scene/SceneMessages.h"
#include "writer/SceneWriter.h"

namespace lumeric {

class FieldExpression;

// The value of `expr` as a number (evaluateScalar); 0 when it gives none.
double numberOf(FieldExpression& expr);
// numberOf for `count` consecutive expressions.
void numbersOf(FieldExpression* exprs, int count, double* out);
// One number a field writes, in the field's order of steps: evaluated
// first, then checked and written.  A plain decimal text keeps its digits,
// which the writer rounds itself; anything else is evaluated to its value.
class WrittenNumber {
 public:
  WrittenNumber() = default;
  // A number already evaluated.
  explicit WrittenNumber(double value) : value_(value) {}

  // Inline: a list of a million numbers calls both for each.
  void evaluate(FieldExpression& expression) {
    expression_ = &expression;
    PlainDecimal decimal;
    if (!evaluateDecimal(&expression, text_, &decimal)) return evaluateValue(expression);
    length_ = decimal.length;
    point_ = decimal.point;
  }
  // A value that is no finite number is reported at its expression and
  // becomes 0 (finiteAt); a decimal text is always finite.
  void checkFinite() {
    if (length_ == 0) value_ = finiteAt(value_, expression_);
  }
  // As SceneWriter::rounded() writes the value, or number() when `round` is
  // false.
  void write(SceneWriter& out, bool round) const;
  // As SceneWriter::integer() writes the value truncated (truncateToInt).
  void writeInteger(SceneWriter& out) const;
  double value() const { return length_ != 0 ? plainDecimalValue(decimal()) : value_; }

 private:
  void evaluateValue(FieldExpression& expression);
  PlainDecimal decimal() const { return PlainDecimal{text_, length_, point_}; }

  FieldExpression* expression_ = nullptr;
  double value_ = 0;
  // The decimal text, its length (0 when the value stands) and its point.
  size_t length_ = 0;
  size_t point_ = 0;
  char text_[kMaxPlainDecimal + 2];
};

// Stores `count` numbers into consecutive expressions with "%g".
void storeNumbers(FieldExpression* exprs, const double* values, int count);
// Stores a string; `quoted` encloses it in quotation marks so that the text
// evaluates back to the same string.  A null string counts as empty.
void storeString(FieldExpression& expr, const char* text, bool quoted);
// Removes the text of `count` consecutive expressions.
void clearTexts(FieldExpression* exprs, int count);

// The refusals of a field whose value is given by one expression ("=..."):
// its value changes only with that expression.
constexpr const char kDefinedCannotSet[] = "This field is defined by a field expression - cannot set its value";
constexpr const char kDefinedCannotAppend[] =
    "This field is defined by a field expression - cannot append to its value";

// New terms holding copies of the numbers.
VectorTerm* makeVector(const double* values, int count);
MatrixTerm* makeMatrix(const double* values, int rows, int cols);

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_FIELDSUPPORT_H
