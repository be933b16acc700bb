#include "FuzzHarness.h"

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

#include "core/RunState.h"

namespace lumeric {

namespace {

constexpr char kSceneName[] = "fuzz-input.vlm";

void enterScratchDirectory() {
  static bool entered = false;
  if (entered) return;
  char pattern[] = "/tmp/lumeric-fuzz-XXXXXX";
  if (mkdtemp(pattern) == nullptr || chdir(pattern) != 0) std::abort();
  entered = true;
}

}  // namespace

const char* writeScene(const std::string& text) {
  enterScratchDirectory();
  FILE* file = std::fopen(kSceneName, "wb");
  if (file == nullptr) std::abort();
  std::fwrite(text.data(), 1, text.size(), file);
  std::fclose(file);
  return kSceneName;
}

void limitNextRun() {
  theRun.limits.confine = true;
  // The default budgets take seconds to spend under the sanitizers; the
  // fuzzer looks for faults, not for the budgets' size.
  theRun.limits.maxEvaluations = 100000;
  theRun.limits.maxNodes = 100000;
}

}  // namespace lumeric
