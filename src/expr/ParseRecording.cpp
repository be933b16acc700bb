#include "expr/ParseRecording.h"

#include <cstring>

#include "expr/FieldReferences.h"
#include "expr/FunctionCalls.h"
#include "expr/LiteralBuilding.h"
#include "expr/ParseContext.h"
#include "expr/Term.h"
#include "expr/TermOperators.h"

namespace lumeric {

namespace {

// The most terms a recorded parse makes; longer texts are parsed each time.
constexpr uint16_t kMaxTerms = 256;

// The most operands of one step: a call of twelve arguments and its name.
constexpr int kMaxOperands = 13;

const char* nameOf(Term* term) { return static_cast<StringTerm*>(term)->text; }

Term* optional(Term* const* operands, int count, int index) { return index < count ? operands[index] : nullptr; }

// The term an action step makes, as the parser's action makes it.
Term* act(ParseStep kind, Term* const* in, int count, FieldExpression* at) {
  switch (kind) {
    case ParseStep::kNegate:
      return negateTerm(in[0], at);
    case ParseStep::kAdd:
      return addTerms(in[0], in[1], at);
    case ParseStep::kSubtract:
      return subtractTerms(in[0], in[1], at);
    case ParseStep::kMultiply:
      return multiplyTerms(in[0], in[1], at);
    case ParseStep::kDivide:
      return divideTerms(in[0], in[1], at);
    case ParseStep::kRemainder:
      return remainderTerms(in[0], in[1], at);
    case ParseStep::kPower:
      return powerTerms(in[0], in[1], at);
    case ParseStep::kNot:
      return notTerm(in[0], at);
    case ParseStep::kAnd:
      return andTerms(in[0], in[1], at);
    case ParseStep::kOr:
      return orTerms(in[0], in[1], at);
    case ParseStep::kEqual:
      return compareTerms(Comparison::kEqual, in[0], in[1], at);
    case ParseStep::kNotEqual:
      return compareTerms(Comparison::kNotEqual, in[0], in[1], at);
    case ParseStep::kLess:
      return compareTerms(Comparison::kLess, in[0], in[1], at);
    case ParseStep::kGreater:
      return compareTerms(Comparison::kGreater, in[0], in[1], at);
    case ParseStep::kLessOrEqual:
      return compareTerms(Comparison::kLessOrEqual, in[0], in[1], at);
    case ParseStep::kGreaterOrEqual:
      return compareTerms(Comparison::kGreaterOrEqual, in[0], in[1], at);
    case ParseStep::kUnit:
      return applyUnit(in[0], nameOf(in[1]), at);
    case ParseStep::kChoose:
      return chooseTerm(in[0], in[1], in[2], at);
    case ParseStep::kTrue:
      return ScalarTerm::make(1.0);
    case ParseStep::kFalse:
      return ScalarTerm::make(0.0);
    case ParseStep::kCall:
      return callFunction(nameOf(in[0]), count > 1 ? in + 1 : nullptr, count - 1, at);
    case ParseStep::kField:
      return referToField(nameOf(in[0]), optional(in, count, 1), optional(in, count, 2), at);
    case ParseStep::kFieldInScope:
      return referToFieldInScope(nameOf(in[0]), optional(in, count, 1), optional(in, count, 2), at);
    case ParseStep::kNodeField:
      return referToNodeField(nameOf(in[0]), nameOf(in[1]), optional(in, count, 2), optional(in, count, 3), at);
    case ParseStep::kAppendToVector:
      return appendToVector(in[0], in[1], at);
    case ParseStep::kAppendMatrixRow:
      return appendMatrixRow(in[0], in[1], at);
    default:
      return nullptr;
  }
}

}  // namespace

uint16_t ParseRecording::nextSlot() {
  if (termCount_ == kMaxTerms) {
    giveUp();
    return 0;
  }
  return termCount_++;
}

void ParseRecording::token(TokenValue& value) {
  if (value.term == nullptr || !usable_) return;
  RecordedParse::Step step{};
  if (value.term->kind == kScalarTerm) {
    step.kind = ParseStep::kNumber;
    step.number = static_cast<ScalarTerm*>(value.term)->value;
  } else if (value.term->kind == kStringTerm && static_cast<StringTerm*>(value.term)->text != nullptr) {
    const char* text = static_cast<StringTerm*>(value.term)->text;
    step.kind = ParseStep::kText;
    step.textStart = static_cast<uint32_t>(parse_.texts.size());
    step.textLength = static_cast<uint32_t>(std::strlen(text));
    parse_.texts.append(text, step.textLength);
  } else {
    giveUp();
    return;
  }
  parse_.steps.push_back(step);
  value.slot = nextSlot();
}

uint16_t ParseRecording::action(ParseStep kind, std::initializer_list<TokenValue> operands) {
  if (!usable_) return 0;
  RecordedParse::Step step{};
  step.kind = kind;
  step.operandCount = static_cast<uint8_t>(operands.size());
  step.firstOperand = static_cast<uint16_t>(parse_.operands.size());
  for (const TokenValue& operand : operands) parse_.operands.push_back(operand.slot);
  parse_.steps.push_back(step);
  return kind == ParseStep::kResult ? 0 : nextSlot();
}

int replayParse(const RecordedParse& parse, ParseContext* context) {
  Term* terms[kMaxTerms];
  int made = 0;
  FieldExpression* at = context->expression;
  for (const RecordedParse::Step& step : parse.steps) {
    Term* in[kMaxOperands];
    const int count = step.operandCount;
    for (int k = 0; k < count; ++k) in[k] = terms[parse.operands[step.firstOperand + k]];
    Term* term;
    switch (step.kind) {
      case ParseStep::kNumber:
        terms[made++] = ScalarTerm::make(step.number);
        continue;
      case ParseStep::kText:
        terms[made++] = StringTerm::make(parse.texts.data() + step.textStart, step.textLength);
        continue;
      case ParseStep::kResult:
        *context->result = in[0];
        continue;
      default:
        term = act(step.kind, in, count, at);
    }
    if (term == nullptr) return 1;
    terms[made++] = term;
  }
  return 0;
}

}  // namespace lumeric
