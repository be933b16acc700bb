// The hint after a message that refuses a name: the names near it among
// those the library offers (core/MessageDetails.h).
#ifndef LUMERIC_CLI_NAMEHINTS_H
#define LUMERIC_CLI_NAMEHINTS_H

#include <string>
#include <vector>

#include "core/MessageDetails.h"

namespace lumeric {

// The number of single-character insertions, deletions, substitutions and
// swaps of neighbours that turn `a` into `b`, letters compared without
// regard to case.
size_t editDistance(const std::string& a, const std::string& b);

// At most three names near `candidates.word()`, nearest first, each once:
// for kFieldCase the names that differ from it in case alone; for the other
// kinds those within an edit distance of 2, except (for the kinds the
// language matches without regard to case: functions, colours) a name the
// word already is in another case.
std::vector<std::string> nearNames(const NameCandidates& candidates);

// "did you mean "a"?", "did you mean "a" or "b"?", "did you mean "a", "b"
// or "c"?"; empty for no names.
std::string hintText(const std::vector<std::string>& names);

}  // namespace lumeric

#endif  // LUMERIC_CLI_NAMEHINTS_H
