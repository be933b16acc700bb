#include "core/RunState.h"

#include "core/QvAtom.h"
#include "core/QvAtomPool.h"
#include "core/LastingState.h"
#include "core/QvContext.h"
#include "core/QvNameTable.h"

namespace lumeric {

RunState theRun;

void RunState::atEndOfRun(void (*release)()) {
  for (int k = 0; k < releaseCount_; ++k) {
    if (releases_[k] == release) return;
  }
  if (releaseCount_ < kMaxReleases) releases_[releaseCount_++] = release;
}

void RunState::reset() {
  delete nameRegistry;
  nameRegistry = nullptr;
  QvAtomPool::freePool();
  for (int k = 0; k < releaseCount_; ++k) releases_[k]();
  pendingOutput.abandon();
  outputWriteError = 0;
  outputFile = nullptr;
  outputFileName[0] = '\0';
  limits = RunLimits();
  confinedTo.clear();
  nestedEvaluations = 0;
  // Serials restart between runs once they pass 2^30, long before they
  // could overflow in a process that translates again and again (a host,
  // --watch, a fuzzer).  No expression outlives the run that read it, and
  // one run's work budget ends it far short of 2^30 serials, so no living
  // mark ever meets a serial drawn again.
  if (expressionSerials > kSerialRestart) expressionSerials = 0;
  valueWork = 0;
  workBudgetSpent = false;
  evaluationBudgetSpent = false;
  valueBytes = 0;
  memoryBudgetSpent = false;
  copiedNodes = 0;
  nodeBudgetSpent = false;
  sceneMayChooseOutput = true;
  extensionsEnabled = true;
  defNames = nullptr;
  includedFiles = nullptr;
  filesRead.clear();
  inputLocation.clear();
  includeDirectories = nullptr;
  readingDepth = 0;
  theContext.fileDepth = -1;
}

void addName(QvNode* node, QvAtom name, int32_t* slot) {
  if (theRun.nameRegistry == nullptr) theRun.nameRegistry = new QvNameTable();
  theRun.nameRegistry->add(name, node, slot);
}

void removeName(QvNode* node, QvAtom name, int32_t* slot) {
  if (theRun.nameRegistry != nullptr && theRun.nameRegistry->remove(name, node, slot)) return;
  QvContext::programError("QvNode::removeName", "Program Error: Name \"%s\" (node %p) is not in dictionary", name.text(),
                          static_cast<void*>(node));
}

}  // namespace lumeric
