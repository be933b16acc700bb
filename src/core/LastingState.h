// What outlives runs.  theRun.reset() leaves it alone (but for the restart
// of expressionSerials below), so it carries from one translation in a
// process to the next; a caller that wants every run to start alike sets it
// back itself (the playground does before every request).
//
//   precisionQuantum        the PRECISION step, which a scene sets
//   gWarn (lumeric.h)       the host's warning switch; its bits below
//   expressionSerials       the last serial drawn (QvContext)
//   randomGeneratorState    the state of the expression language's random
//                           numbers (expr/functions/RandomGenerator.h)
//
// The recorded parses of recent expression texts (expr/RecordedParses.cpp)
// are kept too; they follow from the texts alone, so no run sees another's.
// So is the count of value holders whose text is on the heap
// (scene/FieldExpression.cpp), which follows from the holders alone.
#ifndef LUMERIC_CORE_LASTINGSTATE_H
#define LUMERIC_CORE_LASTINGSTATE_H

#include <cstdint>

namespace lumeric {

// The step every rounded number is written to (SceneWriter::rounded); 0 or
// less turns rounding off.  Set by PRECISION.
extern double precisionQuantum;

// The bits of gWarn.
constexpr unsigned long kWarnUnknownNodes = 2;
constexpr unsigned long kWarnDuplicateNames = 4;
// Whether the host asked for the warnings of `bit`.
bool warningsEnabled(unsigned long bit);

// Serials are not reused within a run.  theRun.reset() starts them again
// from 0 once they pass kSerialRestart: no expression outlives its run, so
// no mark of an earlier run is ever compared with them.
extern int expressionSerials;
constexpr int kSerialRestart = 1 << 30;

// Starts at 1 when the library is loaded and is never reseeded: a scene's
// random numbers continue the sequence of the runs before it.
extern uint32_t randomGeneratorState;

}  // namespace lumeric

#endif  // LUMERIC_CORE_LASTINGSTATE_H
