// What one run of the expression parser works with: the lexer on the text,
// the expression that messages are posted at, and the slot that statement
// rules store their value in.
#ifndef LUMERIC_EXPR_PARSECONTEXT_H
#define LUMERIC_EXPR_PARSECONTEXT_H

#include "expr/ExpressionLexer.h"

namespace lumeric {

class FieldExpression;
class ParseRecording;
struct Term;

struct ParseContext {
  ParseContext(FieldExpression* at, const char* text, int firstToken, Term** resultSlot, int parserSerial)
      : lexer(at, text, firstToken), expression(at), result(resultSlot), serial(parserSerial) {}
  ParseContext(const ParseContext&) = delete;
  ParseContext& operator=(const ParseContext&) = delete;

  ExpressionLexer lexer;
  FieldExpression* expression;
  Term** result;
  int serial;                 // the parser's own serial, for nested lookups
  int lookahead = kEndToken;  // the token the lexer gave last
  ParseRecording* recording = nullptr;  // set while a parse is recorded
};

// Runs the parser over the context's text: 0 when the text was accepted, 1
// when an action failed, a syntax error was found or the stack overflowed
// (each posted where it arose).
int runExpressionParser(ParseContext* context);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_PARSECONTEXT_H
