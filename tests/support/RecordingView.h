// A view that keeps every message the library posts, for tests.
#ifndef LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H
#define LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H

#include <gtest/gtest.h>

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

// A test whose messages go to `view`; the run's names, tables and terms are
// freed after it.
class RecordedTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  RecordingView view;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_SUPPORT_RECORDINGVIEW_H
