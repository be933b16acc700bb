// Reading, writing and growing a long MFVec3f list: time per value and peak
// memory per value for 10^4, 10^5 and 10^6 values.
//
// Each size runs in its own child process, so that the peak resident
// memory (getrusage) of one size is not that of a larger one.  The list is
// read from a temporary file (the scene text is not held in memory), written
// to /dev/null, then built again element by element with appendValue.
//
//   lumeric_bench_fields [COUNT...]

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/RunState.h"
#include "core/QvContext.h"
#include "expr/Term.h"
#include "fields/QvMFVec3f.h"
#include "reader/QvSceneInput.h"
#include "writer/SceneWriter.h"

namespace {

using lumeric::QvMFVec3f;

long peakKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// "[ 0.123456 0.234567 0.345678,\n ... ]": texts of eight characters, all
// different, as a scene holds them.
FILE* sceneFile(long count) {
  FILE* file = std::tmpfile();
  if (file == nullptr) return nullptr;
  std::fputs("#VRML V1.0 ascii\n[", file);
  for (long i = 0; i < count; ++i) {
    long a = (i * 7919) % 1000000;
    long b = (i * 104729 + 1) % 1000000;
    long c = (i * 1299709 + 2) % 1000000;
    std::fprintf(file, " 0.%06ld 0.%06ld 0.%06ld%s\n", a, b, c, i + 1 < count ? "," : " ]");
  }
  std::rewind(file);
  return file;
}

int measure(long count) {
  FILE* scene = sceneFile(count);
  FILE* sink = std::fopen("/dev/null", "w");
  if (scene == nullptr || sink == nullptr) return 1;
  long baseline = peakKilobytes();

  auto* list = new QvMFVec3f;
  auto start = std::chrono::steady_clock::now();
  lumeric::QvSceneInput input;
  input.setFile(scene);
  if (!list->readValue(&input) || list->num != count) {
    std::fprintf(stderr, "reading %ld values failed\n", count);
    return 1;
  }
  double readSeconds = secondsSince(start);

  start = std::chrono::steady_clock::now();
  {
    lumeric::SceneWriter out(sink);
    list->write(out);
  }
  std::fflush(sink);
  double writeSeconds = secondsSince(start);
  long peak = peakKilobytes();
  delete list;
  lumeric::freeAllTerms();

  // Growth one element at a time, as APPEND does it.
  QvMFVec3f grown;
  grown.setNum(0);
  lumeric::VectorTerm* row = lumeric::VectorTerm::make(3);
  row->elements[0] = 0.123456;
  row->elements[1] = 0.234567;
  row->elements[2] = 0.345678;
  start = std::chrono::steady_clock::now();
  for (long i = 0; i < count; ++i) grown.appendValue(row, nullptr);
  double appendSeconds = secondsSince(start);

  double values = static_cast<double>(count);
  std::printf("%9ld %12.1f %12.1f %12.1f %14.1f\n", count, readSeconds / values * 1e9, writeSeconds / values * 1e9,
              appendSeconds / values * 1e9, static_cast<double>(peak - baseline) * 1024.0 / values);
  std::fclose(sink);
  std::fclose(scene);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<long> counts;
  for (int k = 1; k < argc; ++k) counts.push_back(std::atol(argv[k]));
  if (counts.empty()) counts = {10000, 100000, 1000000};
  lumeric::theContext.setView(nullptr);
  std::printf("%9s %12s %12s %12s %14s\n", "values", "read ns/val", "write ns/val", "append ns/val", "peak B/value");
  std::fflush(stdout);
  int failures = 0;
  for (long count : counts) {
    pid_t child = fork();
    if (child == 0) {
      int status = measure(count);
      std::fflush(stdout);
      _exit(status);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0) ++failures;
  }
  return failures == 0 ? 0 : 1;
}
