#include "expr/Evaluation.h"

#include <cstring>
#include <memory>

#include "core/DecimalText.h"
#include "core/QvContext.h"
#include "core/ShortCopy.h"
#include "expr/ExpressionLexer.h"
#include "expr/NestedParse.h"
#include "expr/ParseContext.h"
#include "expr/RecordedParses.h"
#include "expr/TermArena.h"
#include "scene/FieldExpression.h"

namespace lumeric {

namespace {

// A private copy of the text being scanned: an action may store a new text
// into the very expression being parsed (SET on its own field), which frees
// the text under the lexer.  Texts are short, so the copy usually lives in
// the parser's frame.
class TextCopy {
 public:
  explicit TextCopy(const char* text) {
    const size_t size = std::strlen(text) + 1;
    char* place = local_;
    if (size > sizeof local_) {
      heap_.reset(new char[size]);
      place = heap_.get();
    }
    std::memcpy(place, text, size);
    text_ = place;
    length_ = size - 1;
  }
  TextCopy(const TextCopy&) = delete;
  TextCopy& operator=(const TextCopy&) = delete;

  const char* text() const { return text_; }
  size_t length() const { return length_; }

 private:
  char local_[256];
  std::unique_ptr<char[]> heap_;
  const char* text_;
  size_t length_;
};

// Starts an evaluation and parses; the status is kept in the context.
Term* evaluate(FieldExpression* expression, int startToken) {
  Term* result = nullptr;
  const int serial = theContext.startEvaluation();
  theContext.parseStatus = parseExpression(expression, &result, serial, startToken);
  return result;
}

// The steps of an evaluation of a text known to be one number.
void takePlainNumberSteps(FieldExpression* expression) {
  expression->textFor(theContext.startEvaluation());
  theContext.drawSerial();
  theContext.parseStatus = 0;
}

// A text that is one plain decimal number (most written values are) takes
// the same steps as its parse, without parsing: a new evaluation, the text
// read through its guard, one more serial drawn, and a successful status.
// While a parse is in progress the parser takes every text, so that an
// expression rewritten during its own parse still meets the circular
// reference guard.
bool evaluatePlainNumber(FieldExpression* expression, double* out) {
  const char* text = expression != nullptr ? expression->text() : nullptr;
  double value;
  if (text == nullptr || NestedParse::anyInProgress() || !ExpressionLexer::readPlainNumber(text, &value)) {
    return false;
  }
  takePlainNumberSteps(expression);
  *out = value;
  return true;
}

}  // namespace

int parseExpression(FieldExpression* expression, Term** result, int serial, int startToken) {
  if (expression == nullptr || !expression->hasText()) return 0;
  NestedParse nesting(expression);
  const TextCopy text(nesting.admitted() ? expression->textFor(serial) : "0");
  const int parserSerial = theContext.drawSerial();
  // A field reference most often reads a plain number (a LOOP's position,
  // a value a copy stored): it gives the terms its parse would make, the
  // number and, for a negative one, its negation, without running the
  // parser.  The guards above have run as for any text.
  double number;
  if (startToken == 0 && ExpressionLexer::readPlainNumber(text.text(), &number)) {
    const bool negative = text.text()[0] == '-';
    Term* term = ScalarTerm::make(negative ? -number : number);
    if (negative) term = ScalarTerm::make(number);
    *result = term;
    return 0;
  }
  ParseContext context(expression, text.text(), startToken, result, parserSerial);
  return parseOrReplay(&context, text.text(), text.length());
}

Term* evaluateTerm(FieldExpression* expression) { return evaluate(expression, 0); }

StringTerm* evaluateString(FieldExpression* expression) { return asString(evaluate(expression, 0)); }

StringTerm* evaluateName(FieldExpression* expression) {
  return asString(evaluate(expression, kNameExpressionToken));
}

// The scalar is copied out, so every term made for it can go at once.
int evaluateScalar(FieldExpression* expression, double* out) {
  if (evaluatePlainNumber(expression, out)) return 1;
  TermScope scope;
  ScalarTerm* scalar = asScalar(evaluate(expression, 0));
  if (theContext.parseStatus != 0 || scalar == nullptr) return 0;
  *out = scalar->value;
  return 1;
}

bool evaluateDecimal(FieldExpression* expression, char* text, PlainDecimal* decimal) {
  const char* current = expression != nullptr ? expression->text() : nullptr;
  if (current == nullptr || NestedParse::anyInProgress() || !isPlainDecimal(current, decimal)) return false;
  const size_t length = decimal->length;
  if (length < 16) {
    copyShort(text, current, length);
    text[length] = '\0';
  } else {
    std::memcpy(text, current, length + 1);
  }
  decimal->text = text;
  takePlainNumberSteps(expression);
  return true;
}

int evaluateVector(FieldExpression* expression, double* out, int n) {
  TermScope scope;
  VectorTerm* vector = asVectorOf(evaluate(expression, 0), n);
  if (theContext.parseStatus != 0 || vector == nullptr) return 0;
  for (int k = 0; k < n; ++k) out[k] = vector->elements[k];
  return 1;
}

}  // namespace lumeric
