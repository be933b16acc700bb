// The command line's error view: every message on its own line on standard
// error, in the chosen message format (see MessageFormat.h).
//
// In the gnu and json formats, and in plain with hints asked for, the view
// also reads what the library tells about each message while it is posted
// (core/MessageDetails.h):
// - a message about a copy names the file of the node copied (gnu, json);
// - a message that refuses a name is followed by one note naming the near
//   names the library offers (NameHints.h);
// - the messages posted while one LOOP makes its repetitions, and those of
//   copies posted one after another, are held as a block until a message
//   from elsewhere comes or the run ends.  gnu and plain print each
//   distinct message of a block once, in the order first posted, followed
//   by "note: repeated N times" when it came N > 1 times; json prints
//   every message and adds "repeat":N to the first of each kind.
#ifndef LUMERIC_CLI_STDERRVIEW_H
#define LUMERIC_CLI_STDERRVIEW_H

#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

#include "cli/MessageFormat.h"
#include "lumeric/lumeric.h"

namespace lumeric {

class StderrView : public CReportErrorView {
 public:
  explicit StderrView(MessageFormat format = MessageFormat::kPlain, FILE* stream = stderr, bool hints = false)
      : format_(format), stream_(stream), annotates_(hints || format != MessageFormat::kPlain) {}
  ~StderrView() override { finish(); }
  StderrView(const StderrView&) = delete;
  StderrView& operator=(const StderrView&) = delete;

  int post(const char* text, int flag) override;
  // Prints the block held back; call at the end of each run.
  void finish();
  int errorCount() const { return errors_; }
  // Warnings, not counting PRINT output.
  int warningCount() const { return warnings_; }
  // Starts the counts again (for the next run of --watch).
  void resetCounts() { errors_ = warnings_ = 0; }

 private:
  struct Held {
    std::string message;
    MessageParts parts;
    std::string hint;
  };
  void print(const Held& held, long repeat);

  MessageFormat format_;
  FILE* stream_;
  bool annotates_;
  int errors_ = 0;
  int warnings_ = 0;
  const void* blockKey_ = nullptr;
  // The block held back: each distinct message once, in the order first
  // posted, with its count; json also keeps the order of every message.
  std::vector<Held> distinct_;
  std::vector<long> counts_;
  std::unordered_map<std::string, size_t> indexOf_;
  std::vector<size_t> order_;
};

}  // namespace lumeric

#endif  // LUMERIC_CLI_STDERRVIEW_H
