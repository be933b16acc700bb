// A test fixture for the expression language: messages go to a recording
// view, expressions have no owner (so messages start with "Line 3: "), and
// every term is freed after each test.
#ifndef LUMERIC_TESTS_EXPR_EXPRESSIONFIXTURE_H
#define LUMERIC_TESTS_EXPR_EXPRESSIONFIXTURE_H

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "core/QvContext.h"
#include "expr/Term.h"
#include "scene/FieldExpression.h"
#include "support/RecordingView.h"
#include "support/TermText.h"

namespace lumeric {

class ExpressionFixture : public ::testing::Test {
 protected:
  static constexpr int kLine = 3;

  void SetUp() override { theContext.setView(&view_); }
  void TearDown() override {
    theContext.setView(nullptr);
    freeAllTerms();
  }

  // A new expression holding `text`, alive until the end of the test.
  FieldExpression* expression(const std::string& text);
  // The messages posted so far, without the "Line 3: " prefix (whose
  // presence is checked), and forgets them.
  std::vector<std::string> takeMessages();

  RecordingView view_;

 private:
  std::deque<FieldExpression> expressions_;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_EXPR_EXPRESSIONFIXTURE_H
