// The tables and lists that LOOP repetitions fill: name tables that grow
// past their starting bucket count, and pointer lists that take many
// entries in the middle at once (the child lists: scene/QvGroupNodeTest).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/QvAtom.h"
#include "core/QvAtomPool.h"
#include "core/AtomMap.h"
#include "core/QvPointerList.h"

namespace lumeric {
namespace {

class GrowingTablesTest : public ::testing::Test {
 protected:
  void TearDown() override { QvAtomPool::freePool(); }
};

TEST_F(GrowingTablesTest, AtomMapKeepsEveryEntryAcrossGrowth) {
  AtomMap<QvAtom> table(3);
  const int kCount = 20000;
  std::vector<QvAtom> keys;
  for (int i = 0; i < kCount; ++i) keys.emplace_back(("n" + std::to_string(i)).c_str());
  for (int i = 0; i < kCount; ++i) EXPECT_TRUE(table.enter(keys[i], &keys[i]));
  // A second entry under a key replaces the value, before and after growth.
  EXPECT_FALSE(table.enter(keys[7], &keys[8]));
  int found = 0;
  for (int i = 0; i < kCount; ++i) {
    ASSERT_TRUE(table.contains(keys[i])) << i;
    found += table.find(keys[i]) == (i == 7 ? &keys[8] : &keys[i]) ? 1 : 0;
  }
  EXPECT_EQ(found, kCount);
  int visited = 0;
  table.forEachValue([&](QvAtom*) { ++visited; });
  EXPECT_EQ(visited, kCount);
  EXPECT_FALSE(table.contains(QvAtom("absent")));
  EXPECT_EQ(table.find(QvAtom("absent")), nullptr);
  table.clear();
  EXPECT_FALSE(table.contains(keys[0]));
  EXPECT_TRUE(table.enter(keys[0], &keys[0]));
}

TEST_F(GrowingTablesTest, AtomsStayUniqueAcrossGrowth) {
  std::vector<const char*> first;
  for (int i = 0; i < 50000; ++i) first.push_back(QvAtom(("Ball" + std::to_string(i)).c_str()).text());
  for (int i = 0; i < 50000; i += 997) {
    EXPECT_EQ(QvAtom(("Ball" + std::to_string(i)).c_str()).text(), first[i]);
    EXPECT_STREQ(first[i], ("Ball" + std::to_string(i)).c_str());
  }
}

TEST(PointerListTest, InsertsManyAtOnceAndFindsFromBothEnds) {
  QvPointerList list;
  int items[6];
  list.append(&items[0]);
  list.append(&items[5]);
  void* middle[] = {&items[1], &items[2], &items[1]};
  list.insert(middle, 3, 1);
  list.insert(middle, 0, 0);
  ASSERT_EQ(list.getLength(), 5);
  EXPECT_EQ(list.get(0), &items[0]);
  EXPECT_EQ(list.get(3), &items[1]);
  EXPECT_EQ(list.get(4), &items[5]);
  EXPECT_EQ(list.find(&items[1]), 1);
  EXPECT_EQ(list.findLast(&items[1]), 3);
  EXPECT_EQ(list.findLast(&items[3]), -1);
  // An index past the end appends.
  list.insert(middle, 1, 99);
  EXPECT_EQ(list.get(5), &items[1]);
}

}  // namespace
}  // namespace lumeric
