#include "cli/StderrView.h"

namespace lumeric {

int StderrView::post(const char* text, int flag) {
  if (flag == 1) {
    ++errors_;
    std::fprintf(stream_, "error: %s\n", text);
  } else {
    std::fprintf(stream_, "%s\n", text);
  }
  std::fflush(stream_);
  return 0;
}

}  // namespace lumeric
