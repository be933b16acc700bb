// The random numbers of the expression language: one linear congruential
// generator whose state outlives runs (see RandomGenerator.cpp).
#ifndef LUMERIC_EXPR_FUNCTIONS_RANDOMGENERATOR_H
#define LUMERIC_EXPR_FUNCTIONS_RANDOMGENERATOR_H

#include <cstdint>

#include "expr/functions/FunctionRow.h"

namespace lumeric {

// The next draw, 0 to 32767.
int nextRandom();

// rand() and random(): the next draw divided by 32767, from 0 to 1.
Term* randomNumber(Term* const* arguments, FieldExpression* at);

// The state itself, for tests that save it, start from a known state and put
// it back.  The library never sets it.
uint32_t randomState();
void setRandomState(uint32_t state);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_RANDOMGENERATOR_H
