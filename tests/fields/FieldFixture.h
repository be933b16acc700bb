// A fixture for field tests: values are read through a real scene input,
// written to a memory stream, and messages are recorded.  Texts read from
// the scene are on line 2; the caller's expression (`at()`) is on line 7, so
// a message's prefix tells where it was posted.
#ifndef LUMERIC_TESTS_FIELDS_FIELDFIXTURE_H
#define LUMERIC_TESTS_FIELDS_FIELDFIXTURE_H

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "expr/Term.h"
#include "scene/FieldExpression.h"
#include "scene/QvField.h"
#include "support/RecordingView.h"
#include "support/TermText.h"

namespace lumeric {

using Messages = std::vector<std::string>;

class FieldFixture : public ::testing::Test {
 protected:
  static constexpr int kAtLine = 7;

  void SetUp() override;
  void TearDown() override;

  // A new field of the named type (through the factory).
  std::unique_ptr<QvField> make(const char* typeName);
  // Reads `value` as the field's value (the text is on line 2).
  bool read(QvField& field, const std::string& value);
  // A field of the named type holding `value`; fails the test when the
  // value cannot be read.
  std::unique_ptr<QvField> holding(const char* typeName, const std::string& value);
  // The writer's indentation level before and after written().
  int indentLevel = 0;
  // What the field's write gives.
  std::string written(QvField& field);
  // The messages posted so far, and forgets them.
  Messages takeMessages();
  // The caller's message expression.
  FieldExpression* at();
  // The term an expression text evaluates to.
  Term* term(const std::string& text);

  RecordingView view_;

 private:
  std::deque<FieldExpression> expressions_;
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_FIELDS_FIELDFIXTURE_H
