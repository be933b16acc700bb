#include "expr/ExpressionFixture.h"

#include <cstdio>

namespace lumeric {

FieldExpression* ExpressionFixture::expression(const std::string& text) {
  expressions_.emplace_back();
  FieldExpression* e = &expressions_.back();
  e->setText(text.c_str());
  e->line = kLine;
  return e;
}

std::vector<std::string> ExpressionFixture::takeMessages() {
  const std::string prefix = "Line " + std::to_string(kLine) + ": ";
  std::vector<std::string> texts;
  for (const RecordingView::Message& m : view_.messages()) {
    EXPECT_EQ(m.flag, 1) << m.text;
    EXPECT_EQ(m.text.compare(0, prefix.size(), prefix), 0) << m.text;
    texts.push_back(m.text.size() >= prefix.size() ? m.text.substr(prefix.size()) : m.text);
  }
  view_.clear();
  return texts;
}

}  // namespace lumeric
