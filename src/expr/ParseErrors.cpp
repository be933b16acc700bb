#include "expr/ParseErrors.h"

#include <cstdio>

#include "core/QvContext.h"
#include "expr/ExpressionLexer.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The message is built in a buffer of 256 characters, and a further
// expected token is appended only while the text is at most 229 characters
// long, which leaves room for the separator and the longest description.
constexpr size_t kReportSize = 256;
constexpr size_t kLastAppendAt = 229;

class ReportText {
 public:
  void append(const char* format, const char* argument1, const char* argument2 = "") {
    if (used_ >= kReportSize) return;
    int written = std::snprintf(text_ + used_, kReportSize - used_, format, argument1, argument2);
    if (written > 0) used_ += static_cast<size_t>(written);
    if (used_ >= kReportSize) used_ = kReportSize - 1;
  }
  size_t length() const { return used_; }
  const char* text() const { return text_; }

 private:
  char text_[kReportSize] = "";
  size_t used_ = 0;
};

void postReport(FieldExpression* at, const char* head, int found, const int* expected, int count) {
  ReportText report;
  report.append("%s: found %s", head, ExpressionLexer::describeToken(found).c_str());
  if (count > 0) report.append("%s", " - expecting: ");
  for (int k = 0; k < count && report.length() <= kLastAppendAt; ++k) {
    report.append("%s%s", k == 0 ? "" : " or ", ExpressionLexer::describeToken(expected[k]).c_str());
  }
  reportAtExpression(at, "%s", report.text());
}

}  // namespace

void reportSyntaxError(FieldExpression* at, int found, const int* expected, int count) {
  postReport(at, "Syntax error", found, expected, count);
}

void reportTooComplex(FieldExpression* at, int found) { postReport(at, "Expression too complex", found, nullptr, 0); }

}  // namespace lumeric
