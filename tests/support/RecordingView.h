// A view that keeps every message the library posts, for tests.
#ifndef LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H
#define LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H

#include <string>
#include <vector>

#include "lumeric/lumeric.h"

namespace lumeric {

class RecordingView : public CReportErrorView {
 public:
  struct Message {
    std::string text;
    int flag;
  };

  int post(const char* text, int flag) override;

  const std::vector<Message>& messages() const { return messages_; }
  // The messages as the command line prints them: one per line, errors
  // prefixed with "error: ".
  std::string transcript() const;
  int errorCount() const;
  void clear() { messages_.clear(); }

 private:
  std::vector<Message> messages_;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H
