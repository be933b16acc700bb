// The command line's error view: every message on its own line on standard
// error, in the chosen message format (see MessageFormat.h).
#ifndef LUMERIC_CLI_STDERRVIEW_H
#define LUMERIC_CLI_STDERRVIEW_H

#include <cstdio>

#include "cli/MessageFormat.h"
#include "lumeric/lumeric.h"

namespace lumeric {

class StderrView : public CReportErrorView {
 public:
  explicit StderrView(MessageFormat format = MessageFormat::kPlain, FILE* stream = stderr)
      : format_(format), stream_(stream) {}
  int post(const char* text, int flag) override;
  int errorCount() const { return errors_; }
  // Warnings, not counting PRINT output.
  int warningCount() const { return warnings_; }

 private:
  MessageFormat format_;
  FILE* stream_;
  int errors_ = 0;
  int warnings_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_CLI_STDERRVIEW_H
