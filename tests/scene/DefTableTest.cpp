// The DEF table keeps every node entered in it alive until the table dies,
// replaced ones too, so that no name ever leads to a freed node.
#include "scene/DefTable.h"

#include <gtest/gtest.h>

#include "core/QvAtom.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

class MortalNode : public PlainTestNode {
 public:
  explicit MortalNode(bool& dead) : dead_(dead) {}
  ~MortalNode() override { dead_ = true; }

 private:
  bool& dead_;
};

using DefTableTest = RecordedTest;

TEST_F(DefTableTest, EntriesOutliveTheirReadersAndDieWithTheTable) {
  bool firstDead = false;
  bool secondDead = false;
  {
    DefTable table;
    QvNode* first = new MortalNode(firstDead);
    QvNode* second = new MortalNode(secondDead);
    EXPECT_FALSE(table.addName(QvAtom("A"), first));
    EXPECT_TRUE(first->hasName());
    // The reader discards the node (its reading failed: a reference taken
    // and dropped, as discardNode does); the name still leads to it.
    first->ref();
    first->unref();
    EXPECT_FALSE(firstDead);
    EXPECT_EQ(table.findName(QvAtom("A")), first);
    // A later DEF of the name replaces the entry but not the node's life:
    // the evaluation that replaced it may still use it.
    EXPECT_TRUE(table.addName(QvAtom("A"), second));
    EXPECT_EQ(table.findName(QvAtom("A")), second);
    EXPECT_FALSE(firstDead);
    EXPECT_EQ(table.findName(QvAtom("B")), nullptr);
  }
  EXPECT_TRUE(firstDead);
  EXPECT_TRUE(secondDead);
}

TEST_F(DefTableTest, ANodeHeldElsewhereOutlivesTheTable) {
  bool dead = false;
  QvNode* node = new MortalNode(dead);
  node->ref();
  {
    DefTable table;
    table.addName(QvAtom("Kept"), node);
  }
  EXPECT_FALSE(dead);
  EXPECT_EQ(node->refCount, 1);
  node->unref();
  EXPECT_TRUE(dead);
}

}  // namespace
}  // namespace lumeric
