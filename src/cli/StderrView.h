// The command line's error view: every message on its own line on standard
// error, errors as "error: " followed by the text.
#ifndef LUMERIC_CLI_STDERRVIEW_H
#define LUMERIC_CLI_STDERRVIEW_H

#include <cstdio>

#include "lumeric/lumeric.h"

namespace lumeric {

class StderrView : public CReportErrorView {
 public:
  explicit StderrView(FILE* stream = stderr) : stream_(stream) {}
  int post(const char* text, int flag) override;
  int errorCount() const { return errors_; }

 private:
  FILE* stream_;
  int errors_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_CLI_STDERRVIEW_H
