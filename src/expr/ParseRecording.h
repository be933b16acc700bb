// Parsing a text once and evaluating it many times.
//
// The parser evaluates while it parses: the terms of the tokens are made as
// they are scanned, and every rule's action computes a term from the terms
// under it.  A parse that succeeds can be recorded as that sequence, each
// step naming the earlier steps whose terms it takes; replaying the steps
// makes the same terms and calls the same actions with the same arguments in
// the same order, so every field is read afresh and every message is posted
// as the parse would post it.  A replay stops at the first action that fails,
// as the parse does.
//
// Only parses that succeed are kept, and only of rules whose actions the
// replay knows; a statement (SET, APPEND, DECLARE), a name built with "~" or
// a text that fails is parsed every time.  A text is recorded the second
// time it is evaluated, so that texts evaluated once cost no more than
// before.
#ifndef LUMERIC_EXPR_PARSERECORDING_H
#define LUMERIC_EXPR_PARSERECORDING_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "expr/TokenValue.h"

namespace lumeric {

struct ParseContext;

enum class ParseStep : uint8_t {
  // The term of a token: a number, or a text (names, keywords, strings).
  kNumber,
  kText,
  // The actions.
  kNegate,
  kAdd,
  kSubtract,
  kMultiply,
  kDivide,
  kRemainder,
  kPower,
  kNot,
  kAnd,
  kOr,
  kEqual,
  kNotEqual,
  kLess,
  kGreater,
  kLessOrEqual,
  kGreaterOrEqual,
  kUnit,
  kChoose,
  kTrue,
  kFalse,
  kCall,          // the function's name, then its arguments
  kField,         // the field's name, then up to two indices
  kFieldInScope,  // the same, for ":name"
  kNodeField,     // the node's name, the field's name, then up to two indices
  kAppendToVector,
  kAppendMatrixRow,
  // The statement's value: the term of its operand becomes the result.
  kResult,
};

// A recorded parse: its steps, and the operands and texts they refer to.
struct RecordedParse {
  struct Step {
    ParseStep kind;
    uint8_t operandCount;
    uint16_t firstOperand;  // into operands
    uint32_t textStart;     // kText: into texts
    uint32_t textLength;
    double number;          // kNumber
  };
  std::vector<Step> steps;
  std::vector<uint16_t> operands;  // indices of earlier terms, in step order
  std::string texts;
};

// Collects the steps of one parse.  Every term a step makes gets the next
// number, which the token value carries as its `slot`.
class ParseRecording {
 public:
  // The term just scanned (null for tokens without one).
  void token(TokenValue& value);
  // An action's step; returns the slot of the term it makes.
  uint16_t action(ParseStep kind, std::initializer_list<TokenValue> operands);
  // A rule the replay does not know: nothing of this parse is kept.
  void giveUp() { usable_ = false; }
  bool usable() const { return usable_; }

  RecordedParse& parse() { return parse_; }

 private:
  uint16_t nextSlot();

  RecordedParse parse_;
  uint16_t termCount_ = 0;
  bool usable_ = true;
};

// Runs the recorded steps in the context of a parse of the same text: 0 when
// every step succeeded, 1 when an action failed (as the parser returns).
int replayParse(const RecordedParse& parse, ParseContext* context);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_PARSERECORDING_H
