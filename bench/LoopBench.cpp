// The whole translation of a scene whose LOOP repeats a body between two
// siblings, for 10^4, 10^5 and 10^6 repetitions: wall time, peak resident
// memory, and the ratio of the time for 10n repetitions to the time for n
// (linear cost gives about 10).  The ratio is taken of the processor time
// (user and system) of the run, which other work on a shared machine
// disturbs much less than the wall time.  Two bodies:
//   simple  a DEF-named Cube and a Translation with a computed value;
//   named   a Translation named from the position (VARNAME), a Material
//           with a fixed DEF name, and a Cube that reads the Translation
//           back by its computed name: every copy is entered in the DEF
//           table and the registry of names, and copies die in an order
//           unrelated to their naming.
//
// Each size runs in its own child process, so that the peak memory of one
// size is not that of a larger one, BENCH_REPEAT times (default 3); the
// table shows the run of least processor time.  The output goes to
// /dev/null.
//
//   lumeric_bench_loop [simple|named] [COUNT...]

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "driver/Translation.h"
#include "lumeric/lumeric.h"

namespace {

// Counts what the translation posts, so that a broken scene shows.
class CountingView : public CReportErrorView {
 public:
  int post(const char*, int flag) override {
    errors += flag == 1 ? 1 : 0;
    return 0;
  }
  int errors = 0;
};

struct Body {
  const char* name;
  const char* text;
};

const Body kBodies[] = {
    {"simple",
     "\t\tDEF Mark Cube { width 0.5 }\n"
     "\t\tTranslation { translation =(position*0.001, position*position*0.5, 1-position) }\n"},
    {"named",
     "\t\tVARNAME t~`position` Translation { translation =(position*0.001, 1+position*0.5, 0) }\n"
     "\t\tDEF Paint Material { diffuseColor 1 0.5 0 }\n"
     "\t\tCube { width t~`position`:translation[1] }\n"},
};

std::string writeScene(const Body& body, long count) {
  char path[] = "/tmp/lumeric-loop-bench-XXXXXX.vlm";
  int fd = mkstemps(path, 4);
  if (fd < 0) return std::string();
  FILE* file = fdopen(fd, "w");
  std::fprintf(file,
               "#VRML V1.0 ascii\n"
               "Separator {\n"
               "\tInfo { string \"before\" }\n"
               "\tLOOP {\n"
               "\t\tfields [ SFFloat start, SFFloat end, SFFloat position ]\n"
               "\t\tstart 0 end %ld position 0\n"
               "%s"
               "\t}\n"
               "\tInfo { string \"after\" }\n"
               "}\n",
               count, body.text);
  std::fclose(file);
  return path;
}

// Wall seconds of one translation, measured in this (child) process.
int measure(const Body& body, long count, const char* reportPath) {
  std::string scene = writeScene(body, count);
  FILE* sink = std::fopen("/dev/null", "w");
  if (scene.empty() || sink == nullptr) return 1;
  CountingView view;
  lumeric::OutputOverride output;
  output.stream = sink;
  auto start = std::chrono::steady_clock::now();
  lumeric::translateScene(const_cast<char*>(scene.c_str()), &view, nullptr, nullptr, &output);
  double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::fclose(sink);
  std::remove(scene.c_str());
  FILE* report = std::fopen(reportPath, "w");
  if (report == nullptr) return 1;
  std::fprintf(report, "%.9f\n", seconds);
  std::fclose(report);
  return view.errors == 0 ? 0 : 1;
}

struct Run {
  double seconds = 0;
  double cpu = 0;
  double peakMb = 0;
};

// One translation of `count` repetitions in a child process; false when it
// failed.
bool runOnce(const Body& body, long count, const char* reportPath, Run& run) {
  pid_t child = fork();
  if (child == 0) _exit(measure(body, count, reportPath));
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    return false;
  }
  FILE* report = std::fopen(reportPath, "r");
  bool read = report != nullptr && std::fscanf(report, "%lf", &run.seconds) == 1;
  if (report != nullptr) std::fclose(report);
  run.cpu = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
            static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
  run.peakMb = static_cast<double>(usage.ru_maxrss) / 1024.0;
  return read;
}

// Runs every size of one body `repeat` times and shows the best run of
// each; returns the number of failed sizes.
int runBody(const Body& body, const std::vector<long>& counts, int repeat, const char* reportPath) {
  int failures = 0;
  double previous = 0;
  long previousCount = 0;
  for (long count : counts) {
    Run best;
    bool failed = false;
    for (int k = 0; k < repeat && !failed; ++k) {
      Run run;
      failed = !runOnce(body, count, reportPath, run);
      if (!failed && (k == 0 || run.cpu < best.cpu)) best = run;
    }
    if (failed) {
      std::printf("%-8s %12ld %10s\n", body.name, count, "failed");
      ++failures;
      continue;
    }
    std::printf("%-8s %12ld %10.3f %10.3f %10.1f", body.name, count, best.seconds, best.cpu, best.peakMb);
    if (previousCount > 0 && count == previousCount * 10) {
      std::printf(" %14.2f", best.cpu / previous);
    }
    std::printf("\n");
    std::fflush(stdout);
    previous = best.cpu;
    previousCount = count;
  }
  return failures;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<const Body*> bodies;
  std::vector<long> counts;
  for (int k = 1; k < argc; ++k) {
    bool named = false;
    for (const Body& body : kBodies) {
      if (std::strcmp(argv[k], body.name) == 0) {
        bodies.push_back(&body);
        named = true;
      }
    }
    if (!named) counts.push_back(std::atol(argv[k]));
  }
  if (bodies.empty()) {
    for (const Body& body : kBodies) bodies.push_back(&body);
  }
  if (counts.empty()) counts = {10000, 100000, 1000000};
  std::printf("%-8s %12s %10s %10s %10s %14s\n", "body", "repetitions", "seconds", "cpu s", "peak MB",
              "cpu 10n / n");
  std::fflush(stdout);
  char reportPath[] = "/tmp/lumeric-loop-bench-XXXXXX";
  int fd = mkstemp(reportPath);
  if (fd < 0) return 1;
  close(fd);
  int failures = 0;
  const char* repeatText = std::getenv("BENCH_REPEAT");
  const int repeat = repeatText != nullptr && std::atoi(repeatText) > 0 ? std::atoi(repeatText) : 3;
  for (const Body* body : bodies) failures += runBody(*body, counts, repeat, reportPath);
  std::remove(reportPath);
  return failures == 0 ? 0 : 1;
}
