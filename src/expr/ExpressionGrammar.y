/* The grammar of expression texts.  The parser evaluates while it parses:
   every action computes the term of its left side from the terms on the
   value stack, and a failing action ends the parse at once with status 1. */

%require "3.8"
%define api.pure full
%define api.prefix {lumeric_expr_}
%define api.token.prefix {TOK_}
%define api.value.type {lumeric::TokenValue}
%define parse.error custom
%param {lumeric::ParseContext* context}
%expect 0

%code requires {
#include "expr/TokenValue.h"
namespace lumeric { struct ParseContext; }
}

%code {
#include "core/QvContext.h"
#include "expr/FieldAssignments.h"
#include "expr/FieldReferences.h"
#include "expr/FunctionCalls.h"
#include "expr/LiteralBuilding.h"
#include "expr/ParseContext.h"
#include "expr/ParseErrors.h"
#include "expr/ParseRecording.h"
#include "expr/Term.h"
#include "expr/TermOperators.h"

// The generator emits helpers for error reports that this parser does not
// use; it builds its own expected-token list from the tables.
#pragma GCC diagnostic ignored "-Wunused-function"

using namespace lumeric;

// The stacks hold at most 100 states; the push of a 101st reports
// "Expression too complex" with the lookahead (none after a shift, written
// as -1) and ends the parse.  The stacks live in the parser's frame, so a
// parse allocates nothing.
#define YYINITDEPTH 101
#define YYMAXDEPTH 101
#define yyoverflow(message, states, statesSize, values, valuesSize, stackSize)                           \
  ((void)(message), (void)(states), (void)(statesSize), (void)(values), (void)(valuesSize), (void)(stackSize), \
   reportTooComplex(context->expression, yychar == TOK_LUMERIC_EXPR_EMPTY ? -1 : yychar))

#define AT (context->expression)

// $$ = value, or the end of the parse when the action failed.
#define YIELD(slot, value)          \
  do {                              \
    Term* produced_ = (value);      \
    if (produced_ == nullptr) YYABORT; \
    (slot).term = produced_;        \
  } while (0)

// While a parse is recorded (expr/ParseRecording.h), STEP records an
// action with the symbols it takes and gives $$ the slot of its term;
// GIVE_UP marks a rule the replay does not know.
#define STEP(out, kind, ...)                                                                                 \
  do {                                                                                                       \
    if (context->recording != nullptr) (out).slot = context->recording->action(ParseStep::kind, {__VA_ARGS__}); \
  } while (0)
#define STEP0(out, kind)                                                                          \
  do {                                                                                            \
    if (context->recording != nullptr) (out).slot = context->recording->action(ParseStep::kind, {}); \
  } while (0)
#define GIVE_UP()                                                     \
  do {                                                                \
    if (context->recording != nullptr) context->recording->giveUp(); \
  } while (0)

namespace {

const char* nameOf(const TokenValue& value) { return static_cast<StringTerm*>(value.term)->text; }
StringTerm* stringOf(const TokenValue& value) { return static_cast<StringTerm*>(value.term); }

}  // namespace

static int yylex(YYSTYPE* value, ParseContext* context) {
  context->lexer.value = value;
  context->lookahead = context->lexer.nextToken();
  if (context->recording != nullptr) context->recording->token(*value);
  return context->lookahead;
}

static void yyerror(ParseContext*, const char*) {}
}

/* The token codes; the lexer takes them from the generated header
   (ExpressionToken).  They appear in messages, so they are fixed here. */
%token AND 257 APPEND 258 COMMENT 259 DECLARE 260 END 261 EQ 262 FALSE 263
%token IF 264 THEN 265 ELSE 266 GE 267 GT 268 LE 269 LT 270 NAME 271 NE 272
%token NUMBER 273 OR 274 STRING 275 SET 276 USE 277 TRUE 278 NAMEEXPR 279

/* From loosest to tightest.  The rule IF ... ELSE expr takes the level of
   ELSE, so the ELSE branch extends as far right as possible.  The prefix
   operators share the level of "!" and bind tighter than "^" (-2^2 is 4);
   the unit suffix binds tightest of all. */
%precedence ELSE
%left OR
%left AND
%left EQ NE
%left LT GT LE GE
%left '+' '-'
%left '*' '/' '%'
%right '^'
%precedence '!'
%precedence '\''

%%

statement
  : expr                                  { *context->result = $1.term; STEP($$, kResult, $1); }
  | '=' expr                              { *context->result = $2.term; STEP($$, kResult, $2); }
  | query
  | USE nameExpr                          { GIVE_UP(); *context->result = $2.term; }
  | NAMEEXPR nameExpr                     { GIVE_UP(); *context->result = $2.term; }
  | DECLARE nameExpr ':' NAME expr        { GIVE_UP(); declareField(nameOf($2), nameOf($4), $5.term, AT); }
  | SET nameExpr ':' NAME expr            { GIVE_UP(); setFieldValue(nameOf($2), nameOf($4), nullptr, nullptr, $5.term, AT); }
  | SET nameExpr ':' NAME '[' expr ']' expr
                                          { GIVE_UP(); setFieldValue(nameOf($2), nameOf($4), $6.term, nullptr, $8.term, AT); }
  | SET nameExpr ':' NAME '[' expr ']' '[' expr ']' expr
                                          { GIVE_UP(); setFieldValue(nameOf($2), nameOf($4), $6.term, $9.term, $11.term, AT); }
  | APPEND nameExpr ':' NAME expr         { GIVE_UP(); appendFieldValue(nameOf($2), nameOf($4), $5.term, AT); }
  ;

/* Queries are recognised but not answered: the evaluation fails. */
query
  : '?'                                   { YYABORT; }
  | '?' NAME '(' ')'                      { YYABORT; }
  ;

expr
  : primary
  | '+' expr %prec '!'                    { $$ = $2; }
  | '-' expr %prec '!'                    { STEP($$, kNegate, $2); YIELD($$, negateTerm($2.term, AT)); }
  | expr '+' expr                         { STEP($$, kAdd, $1, $3); YIELD($$, addTerms($1.term, $3.term, AT)); }
  | expr '-' expr                         { STEP($$, kSubtract, $1, $3); YIELD($$, subtractTerms($1.term, $3.term, AT)); }
  | expr '*' expr                         { STEP($$, kMultiply, $1, $3); YIELD($$, multiplyTerms($1.term, $3.term, AT)); }
  | expr '/' expr                         { STEP($$, kDivide, $1, $3); YIELD($$, divideTerms($1.term, $3.term, AT)); }
  | expr '%' expr                         { STEP($$, kRemainder, $1, $3); YIELD($$, remainderTerms($1.term, $3.term, AT)); }
  | expr '^' expr                         { STEP($$, kPower, $1, $3); YIELD($$, powerTerms($1.term, $3.term, AT)); }
  | '!' expr                              { STEP($$, kNot, $2); YIELD($$, notTerm($2.term, AT)); }
  | expr AND expr                         { STEP($$, kAnd, $1, $3); YIELD($$, andTerms($1.term, $3.term, AT)); }
  | expr OR expr                          { STEP($$, kOr, $1, $3); YIELD($$, orTerms($1.term, $3.term, AT)); }
  | expr EQ expr                          { STEP($$, kEqual, $1, $3);
        YIELD($$, compareTerms(Comparison::kEqual, $1.term, $3.term, AT)); }
  | expr NE expr                          { STEP($$, kNotEqual, $1, $3);
        YIELD($$, compareTerms(Comparison::kNotEqual, $1.term, $3.term, AT)); }
  | expr LT expr                          { STEP($$, kLess, $1, $3);
        YIELD($$, compareTerms(Comparison::kLess, $1.term, $3.term, AT)); }
  | expr GT expr                          { STEP($$, kGreater, $1, $3);
        YIELD($$, compareTerms(Comparison::kGreater, $1.term, $3.term, AT)); }
  | expr LE expr                          { STEP($$, kLessOrEqual, $1, $3);
        YIELD($$, compareTerms(Comparison::kLessOrEqual, $1.term, $3.term, AT)); }
  | expr GE expr                          { STEP($$, kGreaterOrEqual, $1, $3);
        YIELD($$, compareTerms(Comparison::kGreaterOrEqual, $1.term, $3.term, AT)); }
  | expr '\'' NAME                        { STEP($$, kUnit, $1, $3); YIELD($$, applyUnit($1.term, nameOf($3), AT)); }
  | IF expr THEN expr ELSE expr           { STEP($$, kChoose, $2, $4, $6);
        YIELD($$, chooseTerm($2.term, $4.term, $6.term, AT)); }
  ;

primary
  : NUMBER
  | STRING
  | TRUE                                  { STEP0($$, kTrue); YIELD($$, ScalarTerm::make(1.0)); }
  | FALSE                                 { STEP0($$, kFalse); YIELD($$, ScalarTerm::make(0.0)); }
  | NAME '(' ')'                          { STEP($$, kCall, $1); YIELD($$, callFunction(nameOf($1), nullptr, 0, AT)); }
  | NAME '(' expr ')'
      { Term* arguments[] = {$3.term};
        STEP($$, kCall, $1, $3);
        YIELD($$, callFunction(nameOf($1), arguments, 1, AT)); }
  | NAME '(' expr ',' expr ')'
      { Term* arguments[] = {$3.term, $5.term};
        STEP($$, kCall, $1, $3, $5);
        YIELD($$, callFunction(nameOf($1), arguments, 2, AT)); }
  | NAME '(' expr ',' expr ',' expr ')'
      { Term* arguments[] = {$3.term, $5.term, $7.term};
        STEP($$, kCall, $1, $3, $5, $7);
        YIELD($$, callFunction(nameOf($1), arguments, 3, AT)); }
  | NAME '(' expr ',' expr ',' expr ',' expr ')'
      { Term* arguments[] = {$3.term, $5.term, $7.term, $9.term};
        STEP($$, kCall, $1, $3, $5, $7, $9);
        YIELD($$, callFunction(nameOf($1), arguments, 4, AT)); }
  | NAME '(' expr ',' expr ',' expr ',' expr ',' expr ',' expr ')'
      { Term* arguments[] = {$3.term, $5.term, $7.term, $9.term, $11.term, $13.term};
        STEP($$, kCall, $1, $3, $5, $7, $9, $11, $13);
        YIELD($$, callFunction(nameOf($1), arguments, 6, AT)); }
  | NAME '(' expr ',' expr ',' expr ',' expr ',' expr ',' expr ','
             expr ',' expr ',' expr ',' expr ',' expr ',' expr ')'
      { Term* arguments[] = {$3.term, $5.term, $7.term, $9.term, $11.term, $13.term,
                             $15.term, $17.term, $19.term, $21.term, $23.term, $25.term};
        STEP($$, kCall, $1, $3, $5, $7, $9, $11, $13, $15, $17, $19, $21, $23, $25);
        YIELD($$, callFunction(nameOf($1), arguments, 12, AT)); }
  | NAME                                  { STEP($$, kField, $1);
        YIELD($$, referToField(nameOf($1), nullptr, nullptr, AT)); }
  | NAME '[' expr ']'                     { STEP($$, kField, $1, $3);
        YIELD($$, referToField(nameOf($1), $3.term, nullptr, AT)); }
  | NAME '[' expr ']' '[' expr ']'        { STEP($$, kField, $1, $3, $6);
        YIELD($$, referToField(nameOf($1), $3.term, $6.term, AT)); }
  | ':' NAME                              { STEP($$, kFieldInScope, $2);
        YIELD($$, referToFieldInScope(nameOf($2), nullptr, nullptr, AT)); }
  | ':' NAME '[' expr ']'                 { STEP($$, kFieldInScope, $2, $4);
        YIELD($$, referToFieldInScope(nameOf($2), $4.term, nullptr, AT)); }
  | ':' NAME '[' expr ']' '[' expr ']'    { STEP($$, kFieldInScope, $2, $4, $7);
        YIELD($$, referToFieldInScope(nameOf($2), $4.term, $7.term, AT)); }
  | nameExpr ':' NAME
      { STEP($$, kNodeField, $1, $3);
        YIELD($$, referToNodeField(nameOf($1), nameOf($3), nullptr, nullptr, AT)); }
  | nameExpr ':' NAME '[' expr ']'
      { STEP($$, kNodeField, $1, $3, $5);
        YIELD($$, referToNodeField(nameOf($1), nameOf($3), $5.term, nullptr, AT)); }
  | nameExpr ':' NAME '[' expr ']' '[' expr ']'
      { STEP($$, kNodeField, $1, $3, $5, $8);
        YIELD($$, referToNodeField(nameOf($1), nameOf($3), $5.term, $8.term, AT)); }
  | tuple
  ;

nameExpr
  : NAME
  | nameExpr '~' '`' expr '`'             { GIVE_UP(); YIELD($$, appendFormattedValue(stringOf($1), $4.term, AT)); }
  | nameExpr '~' NAME                     { GIVE_UP(); YIELD($$, joinNames(stringOf($1), stringOf($3))); }
  ;

tuple
  : '(' list ')'                          { $$ = $2; }
  | tuple ';' '(' list ')'                { STEP($$, kAppendMatrixRow, $1, $4); YIELD($$, appendMatrixRow($1.term, $4.term, AT)); }
  ;

list
  : expr
  | list ',' expr                         { STEP($$, kAppendToVector, $1, $3); YIELD($$, appendToVector($1.term, $3.term, AT)); }
  ;

%%

namespace {

// Whether the state shifts the token of symbol kind `symbol`: its entry in
// the packed action table is a positive state number (reductions are
// negative and errors are absent).
bool shifts(int state, int symbol) {
  const int base = yypact[state];
  if (yypact_value_is_default(base)) return false;
  const int index = base + symbol;
  return 0 <= index && index <= YYLAST && yycheck[index] == symbol && yytable[index] > 0;
}

}  // namespace

// The expected tokens are those the state can shift, by token code; the end
// of the text, which only the accepting state takes, is never listed.
static int yyreport_syntax_error(const yypcontext_t* problem, ParseContext* context) {
  int expected[YYMAXUTOK];
  int count = 0;
  const int state = *problem->yyssp;
  for (int code = 1; code <= YYMAXUTOK; ++code) {
    const int symbol = YYTRANSLATE(code);
    if (symbol == YYSYMBOL_YYUNDEF || symbol == YYSYMBOL_YYerror) continue;
    if (shifts(state, symbol)) expected[count++] = code;
  }
  reportSyntaxError(context->expression, context->lookahead, expected, count);
  return 0;
}

namespace lumeric {

int runExpressionParser(ParseContext* context) { return lumeric_expr_parse(context) == 0 ? 0 : 1; }

}  // namespace lumeric
