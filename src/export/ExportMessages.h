// The exporter's own messages, posted to the host's view like the
// translator's.  A problem met many times (a degenerate face, an index out
// of range) is counted and posted once, when the export ends.
#ifndef LUMERIC_EXPORT_EXPORTMESSAGES_H
#define LUMERIC_EXPORT_EXPORTMESSAGES_H

#include <map>
#include <string>

#include "lumeric/lumeric.h"

namespace lumeric {

class ExportMessages {
 public:
  explicit ExportMessages(CReportErrorView* view) : view_(view) {}
  ~ExportMessages() { flush(); }
  ExportMessages(const ExportMessages&) = delete;
  ExportMessages& operator=(const ExportMessages&) = delete;

  // Posted at once: "Warning: " + text, or the error text as it stands.
  void warning(const std::string& text) { post("Warning: " + text, 0); }
  void error(const std::string& text) {
    ++errors_;
    post(text, 1);
  }
  // Counted; flush() posts "Warning: " + text + " (N times)" once for each
  // text, or without the count when it was met once.
  void countWarning(const std::string& text) { ++counted_[text]; }
  void flush() {
    for (const auto& entry : counted_) {
      std::string text = "Warning: " + entry.first;
      if (entry.second > 1) text += " (" + std::to_string(entry.second) + " times)";
      post(text, 0);
    }
    counted_.clear();
  }
  int errors() const { return errors_; }

 private:
  void post(const std::string& text, int flag) {
    if (view_ != nullptr) view_->post(text.c_str(), flag);
  }

  CReportErrorView* view_;
  std::map<std::string, int> counted_;
  int errors_ = 0;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_EXPORTMESSAGES_H
