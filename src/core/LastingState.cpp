#include "core/LastingState.h"

#include "lumeric/lumeric.h"

unsigned long gWarn = 0;

namespace lumeric {

double precisionQuantum = 0.0001;
int expressionSerials = 0;
uint32_t randomGeneratorState = 1;

bool warningsEnabled(unsigned long bit) { return (gWarn & bit) != 0; }

}  // namespace lumeric
