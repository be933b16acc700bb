// The node budget of copies: past it no copy is made, the refusal is said
// once, and the next run starts with the whole budget again.
#include "scene/CopyBudget.h"

#include <gtest/gtest.h>

#include "core/RunState.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

using CopyBudgetTest = RecordedTest;

TEST_F(CopyBudgetTest, RefusesPastTheBudgetAndSaysSoOnce) {
  NodeRef at(new PlainTestNode);
  theRun.limits.maxNodes = 2;
  EXPECT_TRUE(admitCopy(at.get()));
  EXPECT_TRUE(admitCopy(at.get()));
  EXPECT_EQ(view.errorCount(), 0);
  EXPECT_FALSE(admitCopy(at.get()));
  EXPECT_FALSE(admitCopy(at.get()));
  EXPECT_EQ(view.errorCount(), 1);
  EXPECT_NE(view.transcript().find("More than 2 nodes made by copying - no further copies are made"),
            std::string::npos)
      << view.transcript();
  EXPECT_EQ(theRun.copiedNodes, 2);
}

TEST_F(CopyBudgetTest, ANewRunHasTheWholeBudgetAgain) {
  NodeRef at(new PlainTestNode);
  theRun.limits.maxNodes = 1;
  EXPECT_TRUE(admitCopy(at.get()));
  EXPECT_FALSE(admitCopy(at.get()));
  theRun.reset();
  EXPECT_EQ(theRun.limits.maxNodes, RunLimits().maxNodes);
  EXPECT_EQ(theRun.copiedNodes, 0);
  EXPECT_FALSE(theRun.nodeBudgetSpent);
  theRun.limits.maxNodes = 1;
  EXPECT_TRUE(admitCopy(at.get()));
  EXPECT_FALSE(admitCopy(at.get()));
  // The new run's refusal is said again.
  EXPECT_EQ(view.errorCount(), 2);
}

}  // namespace
}  // namespace lumeric
