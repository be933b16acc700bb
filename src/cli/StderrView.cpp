#include "cli/StderrView.h"

namespace lumeric {

int StderrView::post(const char* text, int flag) {
  if (flag == 1) {
    ++errors_;
  } else if (splitMessage(text, flag).severity == MessageParts::kWarning) {
    ++warnings_;
  }
  std::fputs(formatMessage(format_, text, flag).c_str(), stream_);
  std::fflush(stream_);
  return 0;
}

}  // namespace lumeric
