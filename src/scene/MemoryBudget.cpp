#include "scene/MemoryBudget.h"

#include <string>

#include "core/RunState.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The budget as its message gives it: "1536 MB", "64 KB", "1000 bytes".
std::string budgetText() {
  const long long bytes = theRun.limits.maxMemory;
  if (bytes % (1LL << 20) == 0) return std::to_string(bytes >> 20) + " MB";
  if (bytes % (1LL << 10) == 0) return std::to_string(bytes >> 10) + " KB";
  return std::to_string(bytes) + " bytes";
}

constexpr const char* kMessage =
    "More than %s of copied and computed values - no further copies, field references or large results are "
    "made (the budget is raised with --max-memory)";

// Whether the budget holds; the first time it does not, the budget is
// marked spent and `report` posts its message.
template <class Report>
bool holds(size_t more, Report report) {
  if (theRun.memoryBudgetSpent) return false;
  if (theRun.valueBytes + static_cast<long long>(more) <= theRun.limits.maxMemory) return true;
  theRun.memoryBudgetSpent = true;
  report();
  return false;
}

}  // namespace

bool memoryBudgetHolds(const QvNode* at, size_t more) {
  return holds(more, [at] { reportAtNode(at, kMessage, budgetText().c_str()); });
}

bool memoryBudgetHolds(const FieldExpression* at, size_t more) {
  return holds(more, [at] { reportAtExpression(at, kMessage, budgetText().c_str()); });
}

}  // namespace lumeric
