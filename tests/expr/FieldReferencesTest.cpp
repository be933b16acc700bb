#include "expr/FieldReferences.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/RunState.h"
#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionFixture.h"
#include "expr/NestedParse.h"
#include "expr/TestNode.h"
#include "scene/NodeVisit.h"
#include "reader/QvSceneInput.h"

namespace lumeric {
namespace {

// An enclosing node `outer` being evaluated (on the context's node stack),
// and inside it `inner`, the owner of the expressions under test.  `Box` is
// a node with a DEF name in the current input.
class FieldReferencesTest : public ExpressionFixture {
 protected:
  void SetUp() override {
    ExpressionFixture::SetUp();
    outer_ = hold(new TestNode);
    inner_ = hold(new TestNode);
    box_ = hold(new TestNode);
    inner_->parent = outer_;
    outer_->addField("width", "7");
    outer_->addField("depth", "(1,2)");
    outer_->addField("broken", "1/");
    inner_->addField("width", "5");
    inner_->addField("pts", "(10,20,30)");
    inner_->addField("text", "\"abc\"");
    inner_->addField("broken", "1/");
    size_ = box_->addField("size", "(1,2,3)");
    box_->addField("bad", "\"x\"+1");
    theNodeStack.push(outer_);
    theRun.defNames = &input_.defNames();
    input_.addName(QvAtom("Box"), box_);
  }
  void TearDown() override {
    theRun.defNames = nullptr;
    theNodeStack.pop();
    for (TestNode* node : nodes_) node->unref();
    ExpressionFixture::TearDown();
  }

  TestNode* hold(TestNode* node) {
    node->ref();
    nodes_.push_back(node);
    return node;
  }

  // The evaluation of `text` in `inner`, described, and the messages it
  // posted, each with its line prefix.
  std::string evaluateIn(TestNode* owner, const char* text, std::vector<std::string>* messages) {
    FieldExpression* e = expression(text);
    e->attachOwner(owner);
    e->line = kLine;
    std::string result = describeTerm(evaluateTerm(e));
    messages->clear();
    for (const RecordingView::Message& m : view_.messages()) messages->push_back(m.text);
    view_.clear();
    return result;
  }

  TestNode* outer_ = nullptr;
  TestNode* inner_ = nullptr;
  TestNode* box_ = nullptr;
  TestField* size_ = nullptr;

 private:
  QvSceneInput input_;
  std::vector<TestNode*> nodes_;
};

TEST_F(FieldReferencesTest, ResolvesEveryForm) {
  struct Case {
    const char* text;
    const char* result;
    std::vector<std::string> messages;
  };
  const Case cases[] = {
      {"width", "scalar 5", {}},
      {":width", "scalar 7", {}},
      {"width + :width", "scalar 12", {}},
      {"depth", "vector (1,2)", {}},
      {"pts[1.9]", "scalar 20", {}},
      {"pts[-0.5]", "scalar 10", {}},
      {":depth[1]", "scalar 2", {}},
      {"Box:size", "vector (1,2,3)", {}},
      {"Box:size[2]", "scalar 3", {}},
      {"B~ox:size[0]", "scalar 1", {}},
      {"text", "string \"abc\"", {}},
      {"nothere", "none", {"Line 3: Field nothere not found"}},
      {":pts", "none", {"Line 3: Field pts not found"}},
      {"Nobody:size", "none", {"Line 3: Field Nobody:size not found"}},
      {"Box:width", "none", {"Line 3: Field Box:width not found"}},
      {"pts[5]", "none", {"Line 3: pts[5] is not a valid element"}},
      {"pts[1][0]", "none", {"Line 3: pts[1][0] is not a valid element"}},
      {":depth[2]", "none", {"Line 3: depth[2] is not a valid element"}},
      {"Box:size[3]", "none", {"Line 3: Box:size[3] is not a valid element"}},
      {"Box:size[0][0]", "none", {"Line 3: Box:size[0][0] is not a valid element"}},
      {"broken", "none",
       {"Line 20: Syntax error: found [end of file] - expecting: '!' or '(' or '+' or '-' or ':' or FALSE or IF or "
        "NAME or NUMBER or STRING or TRUE",
        "Line 3: broken is not a valid element"}},
      {":broken", "none",
       {"Line 20: Syntax error: found [end of file] - expecting: '!' or '(' or '+' or '-' or ':' or FALSE or IF or "
        "NAME or NUMBER or STRING or TRUE",
        "Line 3: broken is not defined"}},
      {"Box:bad", "none", {"Line 20: Cannot add terms", "Line 3: Box:bad is not defined"}},
      {"pts[(1,2)]", "none", {"Line 3: Cannot use a term as an index"}},
  };
  // Parsed, parsed while recorded, then replayed: the same every time.
  std::vector<std::string> messages;
  for (int round = 0; round < 3; ++round) {
    for (const Case& c : cases) {
      EXPECT_EQ(evaluateIn(inner_, c.text, &messages), c.result) << c.text << " (evaluation " << round + 1 << ")";
      EXPECT_EQ(messages, c.messages) << c.text << " (evaluation " << round + 1 << ")";
    }
  }
}

TEST_F(FieldReferencesTest, PlainNameWithoutOwnFieldSearchesTheScope) {
  std::vector<std::string> messages;
  EXPECT_EQ(evaluateIn(box_, "width", &messages), "scalar 7");
  EXPECT_EQ(evaluateIn(box_, "broken", &messages), "none");
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_EQ(messages[1], "Line 3: broken is not defined");
}

TEST_F(FieldReferencesTest, LocalFieldValue) {
  FieldExpression* at = expression("x");
  EXPECT_EQ(describeTerm(localFieldValue(inner_, "pts", at)), "vector (10,20,30)");
  EXPECT_EQ(localFieldValue(inner_, "depth", at), nullptr);
  EXPECT_EQ(localFieldValue(nullptr, "pts", at), nullptr);
  EXPECT_EQ(localFieldValue(inner_, "broken", at), nullptr);
  std::vector<std::string> messages;
  for (const RecordingView::Message& m : view_.messages()) messages.push_back(m.text);
  view_.clear();
  ASSERT_EQ(messages.size(), 4u);
  EXPECT_EQ(messages[0], "Line 3: Local Field depth not found");
  EXPECT_EQ(messages[1], "Line 3: Local Field pts not found");
  EXPECT_EQ(messages[2].compare(0, 22, "Line 20: Syntax error:"), 0);
  EXPECT_EQ(messages[3], "Line 3: broken is not a valid element");
}

TEST_F(FieldReferencesTest, StatementsReachTheField) {
  struct Case {
    const char* text;
    std::vector<std::string> messages;
    std::vector<std::string> calls;
  };
  const Case cases[] = {
      {"SET Box:size (4,5,6)", {}, {"set vector (4,5,6) [-1][-1]"}},
      {"SET Box:size[1.5] 3", {}, {"set scalar 3 [1][-1]"}},
      {"set Box:size[1][-2.5] 3", {}, {"set scalar 3 [1][-2]"}},
      {"SET B~`\"ox\"`:size[0] 1+1", {}, {"set scalar 2 [0][-1]"}},
      {"SET Box:size[(1,2)] 3", {"Line 3: Scaler index value expected"}, {}},
      {"APPEND Box:size (1,2);(3,4)", {}, {"append matrix (1,2;3,4)"}},
      {"DECLARE Box:size (10.7,-5.2)", {}, {"capacity 10 -5"}},
      {"DECLARE Box:size 4", {}, {"capacity 4 0"}},
      {"DECLARE Box:size (1,2,3)", {"Line 3: Cannot declare value using this expression"}, {}},
      {"DECLARE Box:nothing 4", {"Line 3: Field Box:nothing not found"}, {}},
  };
  std::vector<std::string> messages;
  for (const Case& c : cases) {
    size_->calls.clear();
    EXPECT_EQ(evaluateIn(inner_, c.text, &messages), "none") << c.text;
    EXPECT_EQ(theContext.parseStatus, 0) << c.text;
    EXPECT_EQ(messages, c.messages) << c.text;
    EXPECT_EQ(size_->calls, c.calls) << c.text;
  }
}

TEST_F(FieldReferencesTest, CircularReferencesReadAsZero) {
  TestField* a = inner_->addField("a", "b + 1");
  TestField* b = inner_->addField("b", "a + 1");
  TestField* self = inner_->addField("self", "self * 2 + 5");
  double value = -1;
  EXPECT_EQ(evaluateScalar(&a->value, &value), 1);
  EXPECT_EQ(value, 2);
  EXPECT_EQ(evaluateScalar(&self->value, &value), 1);
  EXPECT_EQ(value, 5);
  ASSERT_EQ(view_.messages().size(), 2u);
  EXPECT_EQ(view_.messages()[0].text, "Line 20: Error: Circular reference");
  EXPECT_EQ(view_.messages()[1].text, "Line 20: Error: Circular reference");
  view_.clear();
  // The guard leaves nothing behind: a later, legitimate evaluation works.
  a->value.setText("4");
  EXPECT_EQ(evaluateScalar(&b->value, &value), 1);
  EXPECT_EQ(value, 5);
  EXPECT_TRUE(view_.messages().empty());
}

TEST_F(FieldReferencesTest, LongReferenceChainsAreCut) {
  const int length = NestedParse::kMaxNestedParses + 50;
  for (int k = 0; k < length; ++k) {
    std::string next = k + 1 < length ? "f" + std::to_string(k + 1) + " + 1" : "1";
    inner_->addField(("f" + std::to_string(k)).c_str(), next.c_str());
  }
  FieldExpression* start = expression("f0");
  start->attachOwner(inner_);
  double value = -1;
  // Each of the first 199 fields adds 1 to a field that is cut and reads 0;
  // the expression itself is the first of the 200 parses.
  EXPECT_EQ(evaluateScalar(start, &value), 1);
  EXPECT_EQ(value, NestedParse::kMaxNestedParses - 1);
  ASSERT_EQ(view_.messages().size(), 1u);
  EXPECT_EQ(view_.messages()[0].text, "Line 20: Error: Field references nested more than 200 deep");
  view_.clear();
  FieldExpression* shortChain = expression("f240");
  shortChain->attachOwner(inner_);
  EXPECT_EQ(evaluateScalar(shortChain, &value), 1);
  EXPECT_EQ(value, 10);
}

// An action that rewrites the text being scanned (here a SET reached through
// a reference) must not pull the text from under the lexer.
TEST_F(FieldReferencesTest, TextRewrittenDuringItsOwnParse) {
  TestField* sum = box_->addField("sum", "setter + 1 + 2 + 3 + 4 + 5 + 6 + 7");
  box_->addField("setter", "SET Box:sum 99");
  double value = -1;
  EXPECT_EQ(evaluateScalar(&sum->value, &value), 1);
  EXPECT_EQ(value, 28);
  EXPECT_STREQ(sum->value.text(), "99");
}

// A text parsed often is replayed from a recording of its parse; when a
// field it reads changes so that an action fails, the replay stops there
// with the parse's message, and later references are not made.
TEST_F(FieldReferencesTest, ReplayStopsWhereTheParseWouldStop) {
  TestField* value = box_->addField("value", "2");
  std::vector<std::string> messages;
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(evaluateIn(inner_, "Box:value * 10 + nothere2", &messages), "none");
    EXPECT_EQ(messages, std::vector<std::string>{"Line 3: Field nothere2 not found"});
    EXPECT_EQ(evaluateIn(inner_, "Box:value * 10 + width", &messages), "scalar 25");
    EXPECT_TRUE(messages.empty());
  }
  value->value.setText("\"text\"");
  EXPECT_EQ(evaluateIn(inner_, "Box:value * 10 + width", &messages), "none");
  EXPECT_EQ(messages, std::vector<std::string>{"Line 3: Cannot multiply terms"});
  value->value.setText("3");
  EXPECT_EQ(evaluateIn(inner_, "Box:value * 10 + width", &messages), "scalar 35");
}

}  // namespace
}  // namespace lumeric
