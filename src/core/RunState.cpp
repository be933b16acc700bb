#include "core/RunState.h"

#include <cmath>

#include "core/QvAtom.h"
#include "core/QvAtomPool.h"
#include "core/QvContext.h"
#include "core/QvNameTable.h"
#include "lumeric/lumeric.h"

unsigned long gWarn = 0;

namespace lumeric {

RunState theRun;
double precisionQuantum = 0.0001;

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
  outputFile = nullptr;
  outputFileName[0] = '\0';
  sceneMayChooseOutput = true;
  extensionsEnabled = true;
  defNames = nullptr;
  includedFiles = nullptr;
  readingDepth = 0;
  parseDepth = 0;
  theContext.fileDepth = -1;
}

void addName(QvNode* node, const char* text) {
  if (theRun.nameRegistry == nullptr) theRun.nameRegistry = new QvNameTable();
  theRun.nameRegistry->add(QvAtom(text), node);
}

void removeName(QvNode* node, const char* text) {
  if (theRun.nameRegistry != nullptr && theRun.nameRegistry->remove(QvAtom(text), node)) return;
  QvContext::programError("QvNode::removeName", "Program Error: Name \"%s\" (node %p) is not in dictionary", text,
                          static_cast<void*>(node));
}

double roundToPrecision(double v) {
  double q = precisionQuantum;
  if (!(q > 0)) return v;
  double steps = v / q;
  if (!std::isfinite(steps)) return v;
  return std::round(steps) * q;
}

bool warningsEnabled(unsigned long bit) { return (gWarn & bit) != 0; }

}  // namespace lumeric
