// The parses in progress, innermost last, as a guard against field
// references that never end.
//
// A field whose expression refers to itself through field references
// re-enters its own parse, each time under a new serial, so the serial guard
// of FieldExpression::textFor() does not see the cycle: finding the
// expression among the parses in progress does.  Such an expression is then
// read as "0", as textFor() reads a circular text.  Every nested parse also
// costs C stack, so a chain of references deeper than kMaxNestedParses is cut
// the same way, with its own message, long before the stack could run out.
// The evaluations that start inside others are counted; past the run's
// budget (theRun.limits.maxEvaluations) every further one is cut, and the
// first of them posts the budget's message.
#ifndef LUMERIC_EXPR_NESTEDPARSE_H
#define LUMERIC_EXPR_NESTEDPARSE_H

namespace lumeric {

class FieldExpression;

class NestedParse {
 public:
  // How deep field references may nest parses of other fields' expressions.
  static constexpr int kMaxNestedParses = 200;

  // Enters `expression` for the lifetime of this object, unless it is
  // already being parsed ("Error: Circular reference") or the nesting is
  // full; both post their message at the expression.
  explicit NestedParse(FieldExpression* expression);
  ~NestedParse();
  NestedParse(const NestedParse&) = delete;
  NestedParse& operator=(const NestedParse&) = delete;

  // Whether the expression may be parsed from its own text.
  bool admitted() const { return admitted_; }
  // Whether any parse is in progress at all.
  static bool anyInProgress();
  // Forgets the parses in progress, at the end of a run (installed with
  // RunState::atEndOfRun); a run that stopped inside a parse leaves none.
  static void endRun();

 private:
  static bool admit(FieldExpression* expression);

  bool admitted_;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPR_NESTEDPARSE_H
