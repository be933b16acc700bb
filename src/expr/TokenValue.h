// The value the expression lexer gives each token, and the parser keeps for
// each symbol on its value stack.
#ifndef LUMERIC_EXPR_TOKENVALUE_H
#define LUMERIC_EXPR_TOKENVALUE_H

#include <cstdint>

namespace lumeric {

struct Term;

struct TokenValue {
  const char* text;  // the token's first character in the expression text
  uint16_t length;   // the token's length plus one
  uint16_t slot;     // the number of its term in a recorded parse
  Term* term;        // numbers, strings and names; null for other tokens
};

}  // namespace lumeric

#endif  // LUMERIC_EXPR_TOKENVALUE_H
