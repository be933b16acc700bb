#include "FuzzHarness.h"

#include <cstdio>
#include <cstdlib>

#include <ftw.h>
#include <unistd.h>

#include "core/RunState.h"

namespace lumeric {

namespace {

constexpr char kSceneName[] = "fuzz-input.vlm";

std::string scratchDirectory;

int removeEntry(const char* path, const struct stat*, int, struct FTW*) {
  std::remove(path);
  return 0;
}

// Removes the scratch directory and whatever the scenes wrote into it.
void removeScratchDirectory() {
  nftw(scratchDirectory.c_str(), removeEntry, 16, FTW_DEPTH | FTW_PHYS);
}

// The scratch directory goes under $TMPDIR when it is set, so that a
// campaign can keep its many small writes in memory (TMPDIR=/dev/shm).
void enterScratchDirectory() {
  if (!scratchDirectory.empty()) return;
  const char* parent = std::getenv("TMPDIR");
  std::string pattern = std::string(parent != nullptr && *parent != '\0' ? parent : "/tmp") + "/lumeric-fuzz-XXXXXX";
  if (mkdtemp(&pattern[0]) == nullptr || chdir(pattern.c_str()) != 0) std::abort();
  scratchDirectory = pattern;
  std::atexit(removeScratchDirectory);
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
  // The default budgets take seconds to spend under the sanitizers, and an
  // input that runs into a budget is slow in proportion to it. The fuzzer
  // looks for faults, not for the budgets' size, so small budgets keep every
  // input quick while still reaching the code past them.
  theRun.limits.maxEvaluations = 2000;
  theRun.limits.maxNodes = 2000;
}

}  // namespace lumeric
