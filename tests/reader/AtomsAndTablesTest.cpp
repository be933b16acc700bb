#include <gtest/gtest.h>

#include <string>

#include "core/QvAtom.h"
#include "core/QvAtomPool.h"
#include "core/AtomKeyedTable.h"
#include "core/QvNameTable.h"
#include "core/QvPointerList.h"

namespace lumeric {
namespace {

class AtomTest : public ::testing::Test {
 protected:
  void TearDown() override { QvAtomPool::freePool(); }
};

TEST_F(AtomTest, EqualTextsShareOneHandleAndCaseMatters) {
  QvAtom a("Separator");
  QvAtom b(std::string("Separator").c_str());
  EXPECT_EQ(a, b);
  EXPECT_EQ(a.text(), b.text());
  EXPECT_NE(QvAtom("separator"), a);
  EXPECT_EQ(QvAtom(""), QvAtom());
  EXPECT_TRUE(QvAtom().isEmpty());
}

TEST_F(AtomTest, LongTextsAndManyTextsAreKept) {
  std::string big(5000, 'q');
  QvAtom first(big.c_str());
  // Enough short names to fill several 4000-byte blocks.
  for (int i = 0; i < 3000; ++i) QvAtom(("name" + std::to_string(i)).c_str());
  EXPECT_EQ(QvAtom(big.c_str()), first);
  EXPECT_EQ(std::string(first.text()), big);
  EXPECT_STREQ(QvAtom("name2999").text(), "name2999");
}

TEST_F(AtomTest, InterningWorksAgainAfterThePoolIsFreed) {
  QvAtom("before");
  QvAtomPool::freePool();
  EXPECT_FALSE(QvAtomPool::exists());
  QvAtom after("after");
  EXPECT_STREQ(after.text(), "after");
  EXPECT_EQ(QvAtom("after"), after);
}

TEST(AtomHash, ShiftsGrowByFiveAndWrapPast24) {
  EXPECT_EQ(QvAtomPool::hash("", 0), 0u);
  EXPECT_EQ(QvAtomPool::hash("A", 1), 65u);
  EXPECT_EQ(QvAtomPool::hash("AB", 2), 65u ^ (66u << 5));
  // The sixth byte is shifted by 25 - 24 = 1.
  uint32_t expected = 'a' ^ ('a' << 5) ^ ('a' << 10) ^ ('a' << 15) ^ ('a' << 20) ^ ('a' << 1);
  EXPECT_EQ(QvAtomPool::hash("aaaaaa", 6), expected);
  // Bytes count as signed: 0xFF is -1, which sets every bit.
  EXPECT_EQ(QvAtomPool::hash("\xff", 1), 0xFFFFFFFFu);
}

TEST(AtomKeyedTable, EnteringAKeyTwiceKeepsOneEntryWithTheLaterValue) {
  AtomKeyedTable table;
  int a = 1;
  int b = 2;
  const void* key = &a;
  EXPECT_TRUE(table.enter(key, &a));
  EXPECT_FALSE(table.enter(key, &b));
  void* value = nullptr;
  ASSERT_TRUE(table.find(key, value));
  EXPECT_EQ(value, &b);
  int count = 0;
  table.forEachValue([&](void*) { ++count; });
  EXPECT_EQ(count, 1);
  EXPECT_FALSE(table.find(&b, value));
  EXPECT_EQ(value, nullptr);
  table.clear();
  EXPECT_FALSE(table.find(key, value));
}

TEST(AtomKeyedTable, KeysInOneBucketStayApart) {
  AtomKeyedTable table(1);
  int items[5];
  for (int& item : items) table.enter(&item, &item);
  for (int& item : items) {
    void* value = nullptr;
    ASSERT_TRUE(table.find(&item, value));
    EXPECT_EQ(value, &item);
  }
}

// Nodes enter the registry when named and leave when renamed or freed;
// leaving a name the node never had is the caller's error.
TEST_F(AtomTest, NameRegistryRemovesTheLastEntryOfANodeOnly) {
  QvNode* a = reinterpret_cast<QvNode*>(0x10);
  QvNode* b = reinterpret_cast<QvNode*>(0x20);
  QvNameTable names;
  EXPECT_FALSE(names.remove(QvAtom("Wheel"), a));
  names.add(QvAtom("Wheel"), a);
  names.add(QvAtom("Wheel"), b);
  names.add(QvAtom("Wheel"), a);
  EXPECT_FALSE(names.remove(QvAtom("Axle"), a));
  EXPECT_TRUE(names.remove(QvAtom("Wheel"), a));
  EXPECT_TRUE(names.remove(QvAtom("Wheel"), a));
  EXPECT_FALSE(names.remove(QvAtom("Wheel"), a));
  EXPECT_TRUE(names.remove(QvAtom("Wheel"), b));
  EXPECT_FALSE(names.remove(QvAtom("Wheel"), b));
}

TEST(PointerList, InsertRemoveAndFindKeepOrder) {
  QvPointerList list;
  int v[6];
  for (int i = 0; i < 5; ++i) list.append(&v[i]);
  list.insert(&v[5], 0);
  list.insert(nullptr, -1);
  ASSERT_EQ(list.getLength(), 7);
  EXPECT_EQ(list.get(0), &v[5]);
  EXPECT_EQ(list.get(1), &v[0]);
  EXPECT_EQ(list.get(6), nullptr);
  EXPECT_EQ(list.find(&v[3]), 4);
  EXPECT_EQ(list.find(&list), -1);
  list.remove(0);
  EXPECT_EQ(list.get(0), &v[0]);
  list.truncate(2);
  EXPECT_EQ(list.getLength(), 2);
  list.remove(10);  // out of range: nothing happens
  EXPECT_EQ(list.getLength(), 2);
}

}  // namespace
}  // namespace lumeric
