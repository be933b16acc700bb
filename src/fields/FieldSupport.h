// Small operations every field type is built from: evaluating a component
// with its fallback, storing numbers and strings back as text, making result
// terms, and writing value text quickly.
#ifndef LUMERIC_FIELDS_FIELDSUPPORT_H
#define LUMERIC_FIELDS_FIELDSUPPORT_H

#include <cstddef>
#include <cstdio>

#include "expr/Term.h"

namespace lumeric {

class FieldExpression;

// The value of `expr` as a number (evaluateScalar); 0 when it gives none.
double numberOf(FieldExpression& expr);
// numberOf for `count` consecutive expressions.
void numbersOf(FieldExpression* exprs, int count, double* out);
// Stores `count` numbers into consecutive expressions with "%g".
void storeNumbers(FieldExpression* exprs, const double* values, int count);
// Stores a string; `quoted` encloses it in quotation marks so that the text
// evaluates back to the same string.  A null string counts as empty.
void storeString(FieldExpression& expr, const char* text, bool quoted);
// Removes the text of `count` consecutive expressions.
void clearTexts(FieldExpression* exprs, int count);

// `v` truncated toward zero.  Values beyond the int range saturate and NaN
// gives 0, so that no input can make the conversion undefined.
int truncateToInt(double v);

// New terms holding copies of the numbers.
VectorTerm* makeVector(const double* values, int count);
MatrixTerm* makeMatrix(const double* values, int rows, int cols);

// Posts `message` as it stands (it may contain '%') at `at`.
void reportAt(const FieldExpression* at, const char* message);

// Buffered value text for one write: pieces are collected and handed to the
// stream in large blocks, so that a list of a million numbers costs a few
// thousand writes rather than several million formatted prints.  The text
// reaches the stream at flush() or destruction, in order.
class OutputText {
 public:
  explicit OutputText(FILE* out) : out_(out) {}
  ~OutputText() { flush(); }
  OutputText(const OutputText&) = delete;
  OutputText& operator=(const OutputText&) = delete;

  OutputText& text(const char* s);
  OutputText& character(char c);
  // "%g" of the number (see NumberText.h).
  OutputText& number(double v);
  // "%g" of roundToPrecision(v).
  OutputText& rounded(double v);
  // "%d".
  OutputText& integer(long v);
  // The tabs with which writeIndented starts a line (indentLevel of the
  // context).
  OutputText& indentation();
  void flush();

 private:
  void makeRoom(size_t length) {
    if (used_ + length > sizeof buffer_) flush();
  }

  FILE* out_;
  size_t used_ = 0;
  char buffer_[4096];
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_FIELDSUPPORT_H
