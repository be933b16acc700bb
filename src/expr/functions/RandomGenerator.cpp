#include "expr/functions/RandomGenerator.h"

#include "core/LastingState.h"

namespace lumeric {

// The state (randomGeneratorState, core/LastingState.h) outlives runs: every
// translation in one process continues the sequence of the one before.

int nextRandom() {
  // Unsigned arithmetic wraps modulo 2^32, as the recurrence wants.
  randomGeneratorState = randomGeneratorState * 214013u + 2531011u;
  return static_cast<int>((randomGeneratorState >> 16) & 0x7FFFu);
}

Term* randomNumber(Term* const*, FieldExpression*) {
  return ScalarTerm::make(nextRandom() * 3.051850947599719e-05);
}

uint32_t randomState() { return randomGeneratorState; }

void setRandomState(uint32_t state) { randomGeneratorState = state; }

}  // namespace lumeric
