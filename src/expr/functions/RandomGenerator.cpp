#include "expr/functions/RandomGenerator.h"

namespace lumeric {

namespace {

// STATE THAT OUTLIVES RUNS.  The generator starts at 1 when the library is
// loaded and is never reseeded: every translation in one process continues
// the sequence of the one before, so a scene's random numbers depend on what
// the process translated earlier.  The end-of-run clean-up leaves it alone.
uint32_t generatorState = 1;

}  // namespace

int nextRandom() {
  // Unsigned arithmetic wraps modulo 2^32, as the recurrence wants.
  generatorState = generatorState * 214013u + 2531011u;
  return static_cast<int>((generatorState >> 16) & 0x7FFFu);
}

Term* randomNumber(Term* const*, FieldExpression*) {
  return ScalarTerm::make(nextRandom() * 3.051850947599719e-05);
}

uint32_t randomState() { return generatorState; }

void setRandomState(uint32_t state) { generatorState = state; }

}  // namespace lumeric
