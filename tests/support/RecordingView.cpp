#include "support/RecordingView.h"

#include "core/QvContext.h"
#include "core/RunState.h"

namespace lumeric {

int RecordingView::post(const char* text, int flag) {
  messages_.push_back({text, flag});
  return 0;
}

std::string RecordingView::transcript() const {
  std::string all;
  for (const Message& m : messages_) {
    if (m.flag == 1) all += "error: ";
    all += m.text;
    all += '\n';
  }
  return all;
}

int RecordingView::errorCount() const {
  int count = 0;
  for (const Message& m : messages_) count += m.flag == 1 ? 1 : 0;
  return count;
}

void RecordedTest::SetUp() { theContext.setView(&view); }

void RecordedTest::TearDown() {
  theContext.setView(nullptr);
  theRun.reset();
}

}  // namespace lumeric
