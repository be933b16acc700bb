// What the host programs share: a view that keeps every message, a check
// that counts failures, and whole-file reading.  Host programs see only the
// public headers, so this uses nothing else.
#ifndef LUMERIC_TESTS_HOST_HOSTCHECKS_H
#define LUMERIC_TESTS_HOST_HOSTCHECKS_H

#include <cstdio>
#include <string>
#include <vector>

#include "lumeric/lumeric.h"

namespace host {

// Keeps each message, errors prefixed "error: ".
class CollectingView : public CReportErrorView {
 public:
  int post(const char* text, int flag) override {
    messages.push_back(std::string(flag ? "error: " : "") + text);
    return 0;
  }
  std::vector<std::string> messages;
};

// Counts and reports the failed checks of the program named `program`.
class Checks {
 public:
  explicit Checks(const char* program) : program_(program) {}
  void expect(bool ok, const std::string& what) {
    if (ok) return;
    std::fprintf(stderr, "%s: FAILED: %s\n", program_, what.c_str());
    ++failures_;
  }
  // The exit status: 0 when every check passed, with a line saying so.
  int result() const {
    if (failures_ == 0) std::printf("%s: ok\n", program_);
    return failures_ == 0 ? 0 : 1;
  }

 private:
  const char* program_;
  int failures_ = 0;
};

// The bytes of the file `path`; empty when it cannot be read.
inline std::string readAll(const std::string& path) {
  std::string text;
  if (FILE* file = std::fopen(path.c_str(), "rb")) {
    char buffer[4096];
    size_t got;
    while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) text.append(buffer, got);
    std::fclose(file);
  }
  return text;
}

}  // namespace host

#endif  // LUMERIC_TESTS_HOST_HOSTCHECKS_H
