// What every fuzz target shares: a scratch directory the process works in,
// the input written there as a scene file, and confinement, so that INCLUDE
// and OUTPUT_TO of a generated scene cannot touch anything outside it.
#ifndef LUMERIC_FUZZ_FUZZHARNESS_H
#define LUMERIC_FUZZ_FUZZHARNESS_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumeric {

// Writes `text` to the scene file in the scratch directory (made and
// entered on first use) and returns its name.
const char* writeScene(const std::string& text);
// Confines the next run to the scratch directory and gives it budgets
// small enough to spend in well under a second.
void limitNextRun();

}  // namespace lumeric

#endif  // LUMERIC_FUZZ_FUZZHARNESS_H
