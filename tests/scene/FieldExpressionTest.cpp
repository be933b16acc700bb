#include "scene/FieldExpression.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "core/QvContext.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

TEST(FieldExpression, AFreshHolderHasNothing) {
  FieldExpression e;
  EXPECT_EQ(e.text(), nullptr);
  EXPECT_FALSE(e.hasText());
  EXPECT_EQ(e.mark, -1);
  EXPECT_EQ(e.line, 0);
  EXPECT_EQ(e.owner, nullptr);
  e.setText("");
  ASSERT_NE(e.text(), nullptr);
  EXPECT_FALSE(e.hasText());
}

// Stores of many holders skip destroying them when no holder anywhere keeps
// a text on the heap, so every way into and out of that form must count.
TEST(FieldExpression, HeapTextsAreCountedThroughCopiesMovesAndClears) {
  const bool before = FieldExpression::anyHeapTexts();
  const std::string longText(40, 'x');
  {
    FieldExpression a;
    a.setText(longText.c_str());
    EXPECT_TRUE(FieldExpression::anyHeapTexts());
    FieldExpression b(std::move(a));
    FieldExpression c(b);
    c.setText("short");
    c = b;
    b.clearText();
    EXPECT_TRUE(FieldExpression::anyHeapTexts());  // c's copy
    FieldExpression d;
    d = std::move(c);
    d.setNumber(2);
    EXPECT_EQ(FieldExpression::anyHeapTexts(), before);
    d.setText(longText.c_str());
  }
  EXPECT_EQ(FieldExpression::anyHeapTexts(), before);
}

TEST(FieldExpression, NumbersAreStoredAsPrintfWouldFormatThem) {
  struct {
    double value;
    const char* text;
  } cases[] = {{0.1, "0.1"},          {1e-7, "1e-07"},       {3.14159265, "3.14159"}, {1234567, "1.23457e+06"},
               {-0.0, "-0"},          {100000, "100000"},    {1e6, "1e+06"},          {0.0001, "0.0001"},
               {0.00001, "1e-05"},    {0.785398185, "0.785398"}};
  for (const auto& c : cases) {
    FieldExpression e;
    e.setNumber(c.value);
    EXPECT_STREQ(e.text(), c.text) << c.value;
  }
  FieldExpression e;
  e.setInteger(-3);
  EXPECT_STREQ(e.text(), "-3");
}

TEST(FieldExpression, TextsOfEveryLengthSurviveCopiesAndMoves) {
  for (size_t length : {0, 1, 14, 15, 16, 17, 600}) {
    std::string text(length, 'a');
    FieldExpression e;
    e.setText(text.c_str());
    e.mark = 4;
    e.line = 9;
    FieldExpression copy(e);
    EXPECT_EQ(std::string(copy.text()), text);
    FieldExpression moved(std::move(copy));
    EXPECT_EQ(std::string(moved.text()), text);
    EXPECT_EQ(moved.line, 9);
    FieldExpression assigned;
    assigned = moved;
    EXPECT_EQ(std::string(assigned.text()), text);
    e.setText(e.text());  // replacing a text by itself
    EXPECT_EQ(std::string(e.text()), text);
  }
}

TEST(FieldExpression, AssignmentKeepsTheTargetsOwner) {
  PlainTestNode a;
  PlainTestNode b;
  FieldExpression source;
  source.setText("1+2");
  source.mark = 5;
  source.line = 8;
  source.owner = &a;
  FieldExpression target;
  target.owner = &b;
  target = source;
  EXPECT_STREQ(target.text(), "1+2");
  EXPECT_EQ(target.mark, 5);
  EXPECT_EQ(target.line, 8);
  EXPECT_EQ(target.owner, &b);
}

TEST(FieldExpression, AttachOwnerOnlyFillsAnEmptyOwner) {
  PlainTestNode a;
  a.line = 4;
  PlainTestNode b;
  b.line = 9;
  FieldExpression e;
  e.attachOwner(nullptr);
  EXPECT_EQ(e.owner, nullptr);
  e.attachOwner(&a);
  EXPECT_EQ(e.owner, &a);
  EXPECT_EQ(e.line, 4);
  e.attachOwner(&b);
  EXPECT_EQ(e.owner, &a);
  EXPECT_EQ(e.line, 4);
}

TEST(FieldExpression, TheGuardSeesAnExpressionReadTwiceInOneEvaluation) {
  RecordingView view;
  theContext.setView(&view);
  FieldExpression e;
  e.setText("x+1");
  e.line = 2;

  int serial = theContext.startEvaluation();
  EXPECT_STREQ(e.textFor(serial), "x+1");
  EXPECT_EQ(e.mark, serial);
  // A later evaluation of the same expression within this one: circular.
  EXPECT_STREQ(e.textFor(serial + 1), "0");
  ASSERT_EQ(view.messages().size(), 1u);
  EXPECT_EQ(view.messages()[0].text, "Line 2: Error: Circular reference");
  // The same serial again is no cycle.
  EXPECT_STREQ(e.textFor(serial), "x+1");
  // A new evaluation reads it freely.
  int next = theContext.startEvaluation();
  EXPECT_STREQ(e.textFor(next), "x+1");
  EXPECT_EQ(view.messages().size(), 1u);
  theContext.setView(nullptr);
}

}  // namespace
}  // namespace lumeric
