// The scanner of expression texts.  Numbers, strings and names become terms
// as they are scanned, so that the parser's value stack holds terms only.
#ifndef LUMERIC_EXPR_EXPRESSIONLEXER_H
#define LUMERIC_EXPR_EXPRESSIONLEXER_H

#include <string>

#include "expr/ExpressionGrammar.h"  // generated from ExpressionGrammar.y
#include "expr/TokenValue.h"

namespace lumeric {

class FieldExpression;

// Token codes: the codes the grammar gives its tokens, taken from the
// generated parser header so that lexer and parser cannot disagree.  Single
// characters are their own code; the named tokens are numbered one after
// the other in the order of their names in messages.  COMMENT and END are
// never scanned; NAMEEXPR is only ever a start token.
enum ExpressionToken : int {
  kEndToken = TOK_YYEOF,
  kErrorToken = TOK_LUMERIC_EXPR_error,
  kAndToken = TOK_AND,
  kAppendToken = TOK_APPEND,
  kCommentToken = TOK_COMMENT,
  kDeclareToken = TOK_DECLARE,
  kEndKeywordToken = TOK_END,
  kEqToken = TOK_EQ,
  kFalseToken = TOK_FALSE,
  kIfToken = TOK_IF,
  kThenToken = TOK_THEN,
  kElseToken = TOK_ELSE,
  kGeToken = TOK_GE,
  kGtToken = TOK_GT,
  kLeToken = TOK_LE,
  kLtToken = TOK_LT,
  kNameToken = TOK_NAME,
  kNeToken = TOK_NE,
  kNumberToken = TOK_NUMBER,
  kOrToken = TOK_OR,
  kStringToken = TOK_STRING,
  kSetToken = TOK_SET,
  kUseToken = TOK_USE,
  kTrueToken = TOK_TRUE,
  kNameExpressionToken = TOK_NAMEEXPR,
};

class ExpressionLexer {
 public:
  // Scans `text` (NUL-terminated, kept alive by the caller for the life of
  // the lexer) from `source`.  A non-zero `firstToken` is delivered before
  // anything else.
  ExpressionLexer(FieldExpression* source, const char* text, int firstToken);
  ExpressionLexer(const ExpressionLexer&) = delete;
  ExpressionLexer& operator=(const ExpressionLexer&) = delete;

  // The next token code, with *value filled (value must be set first).
  // At the end of the text, or at a control character, every call gives 0.
  int nextToken();

  // The text naming a token in messages.
  static std::string describeToken(int code);

  // True when the whole text is one decimal NUMBER, with at most one sign in
  // front: the value is then that of the text's parse, computed without
  // parsing.  Octal and hexadecimal numbers, malformed exponents, over-long
  // numbers and anything else are left to the parser.
  static bool readPlainNumber(const char* text, double* value);

  FieldExpression* expression;  // where the text came from
  const char* cursor;           // the next unread character
  TokenValue* value;            // the parser's current token value
  int startToken;

 private:
  enum : int { kSkip = -1 };

  int scanToken(const char* start);
  int scanPunctuation(unsigned char c);
  int scanNumber(const char* start);
  double scanRadixNumber(const char* digits, int base);
  double scanDecimalNumber(const char* start);
  int scanString();
  int scanName(const char* start);
  int followedBy(char second, int pairToken, int singleToken);
  void skipWhiteSpace();
  void skipComment();
};

}  // namespace lumeric

#endif  // LUMERIC_EXPR_EXPRESSIONLEXER_H
