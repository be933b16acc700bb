#include "scene/NodeVisit.h"

#include <gtest/gtest.h>

#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

using NodeVisitTest = RecordedTest;

TEST_F(NodeVisitTest, NodeStackHoldsReferencesAndSurvivesOverflow) {
  PlainTestNode* node = new PlainTestNode();
  node->ref();
  EXPECT_EQ(theNodeStack.top(), nullptr);
  theNodeStack.push(node);
  EXPECT_EQ(node->refCount, 2);
  EXPECT_EQ(theNodeStack.top(), node);

  // Past its 63 slots the stack only counts, and every pop undoes its own
  // push: the node stays referenced exactly once by the stack.
  for (int i = 0; i < 100; ++i) theNodeStack.push(node);
  EXPECT_EQ(node->refCount, 1 + NodeStack::kMaxNodes);
  for (int i = 0; i < 100; ++i) theNodeStack.pop();
  EXPECT_EQ(node->refCount, 2);
  theNodeStack.pop();
  EXPECT_EQ(node->refCount, 1);
  EXPECT_EQ(theNodeStack.top(), nullptr);
  node->unref();
}

TEST_F(NodeVisitTest, AVisitRecordsTheEnclosingNodeAndEndsWithItsScope) {
  PlainTestNode outer;
  PlainTestNode inner;
  outer.ref();
  inner.ref();
  {
    NodeVisit visitOuter(&outer);
    EXPECT_EQ(outer.parent, nullptr);
    {
      NodeVisit visitInner(&inner);
      EXPECT_EQ(inner.parent, &outer);
      EXPECT_EQ(theNodeStack.top(), &inner);
      EXPECT_EQ(inner.refCount, 2);
    }
    EXPECT_EQ(theNodeStack.top(), &outer);
    EXPECT_EQ(inner.refCount, 1);
  }
  EXPECT_EQ(theNodeStack.top(), nullptr);
  EXPECT_EQ(outer.refCount, 1);
}

}  // namespace
}  // namespace lumeric
