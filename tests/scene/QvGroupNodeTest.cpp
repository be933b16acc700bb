// A group's children: lists that take many nodes in the middle at once, and
// the index of the child being evaluated, which a child that inserts nodes
// behind itself (LOOP) asks for.
#include "scene/QvGroupNode.h"

#include <gtest/gtest.h>

#include <vector>

#include "scene/QvNodeList.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

class TestGroup : public QvGroupNode {
 public:
  QvFieldTable* getFieldTable() override { return nullptr; }
  bool readInstance(QvSceneInput*) override { return true; }
  const char* getClassName() const override { return "TestGroup"; }
};

// Records where its group says it stands each time it is evaluated; the
// first time, it inserts two nodes right behind itself.
class ProbeNode : public PlainTestNode {
 public:
  explicit ProbeNode(QvGroupNode* group) : group_(group) {}
  void evaluate(QvGroupNode*, bool) override {
    const int index = group_->indexOfChild(this);
    places.push_back(index);
    if (places.size() > 1) return;
    QvNodeList batch;
    batch.append(new PlainTestNode);
    batch.append(new PlainTestNode);
    group_->insertChildren(batch, index + 1);
  }
  std::vector<int> places;

 private:
  QvGroupNode* group_;
};

using QvGroupNodeTest = RecordedTest;

TEST(QvNodeList, InsertAllTakesOneReferenceEach) {
  QvNode* a = new PlainTestNode;
  QvNode* b = new PlainTestNode;
  QvNode* c = new PlainTestNode;
  QvNodeList target;
  target.append(a);
  target.append(c);
  {
    QvNodeList batch;
    batch.append(b);
    batch.append(b);
    target.insertAll(batch, 1);
    EXPECT_EQ(b->refCount, 4);
  }
  EXPECT_EQ(b->refCount, 2);
  ASSERT_EQ(target.getLength(), 4);
  EXPECT_EQ(target.get(0), a);
  EXPECT_EQ(target.get(1), b);
  EXPECT_EQ(target.get(2), b);
  EXPECT_EQ(target.get(3), c);
}

TEST_F(QvGroupNodeTest, InsertChildrenPlacesInOrderAndAppendsAtMinusOne) {
  NodeRef group(new TestGroup);
  TestGroup* g = static_cast<TestGroup*>(group.get());
  QvNode* first = new PlainTestNode;
  QvNode* last = new PlainTestNode;
  g->addChild(first);
  g->addChild(last);
  QvNode* x = new PlainTestNode;
  QvNode* y = new PlainTestNode;
  QvNodeList batch;
  batch.append(x);
  batch.append(y);
  g->insertChildren(batch, 1);
  g->insertChildren(batch, -1);
  ASSERT_EQ(g->getNumChildren(), 6);
  const QvNode* expected[] = {first, x, y, last, x, y};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(g->getChild(i), expected[i]) << i;
  EXPECT_EQ(g->indexOfChild(last), 3);
  EXPECT_EQ(g->indexOfChild(x), 1);
  NodeRef stranger(new PlainTestNode);
  EXPECT_EQ(g->indexOfChild(stranger.get()), -1);
}

TEST_F(QvGroupNodeTest, IndexOfChildIsThePlaceBeingEvaluated) {
  // The probe stands twice; the nodes it inserts behind itself move its
  // second place, and both places are found, not only the first.
  NodeRef group(new TestGroup);
  TestGroup* g = static_cast<TestGroup*>(group.get());
  ProbeNode* probe = new ProbeNode(g);
  g->addChild(probe);
  g->addChild(new PlainTestNode);
  g->addChild(probe);
  g->evaluateInPlace();
  EXPECT_EQ(probe->places, (std::vector<int>{0, 4}));
  EXPECT_EQ(g->getNumChildren(), 5);
}

}  // namespace
}  // namespace lumeric
