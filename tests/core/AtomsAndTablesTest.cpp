#include <gtest/gtest.h>

#include <cstdint>
#include <set>
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

// Names generated in a LOOP differ in a few digits; they must not share
// hash values, or interning a million of them walks long bucket chains.
TEST(AtomHash, GeneratedNamesSpreadOverDistinctValues) {
  std::set<uint32_t> hashes;
  constexpr int kNames = 100000;
  for (int i = 0; i < kNames; ++i) {
    std::string name = "t" + std::to_string(i);
    hashes.insert(QvAtomPool::hash(name.data(), name.size()));
  }
  EXPECT_GT(hashes.size(), kNames * 99u / 100);
  EXPECT_EQ(QvAtomPool::hash("b0.5", 4), QvAtomPool::hash("b0.5x", 4));
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

// Nodes enter the registry when named and leave when renamed or freed, in
// any order; leaving a name the node does not have is the caller's error.
TEST_F(AtomTest, NameRegistryRemovesEntriesInAnyOrder) {
  constexpr int kNodes = 6;
  QvNode* nodes[kNodes];
  int32_t slots[kNodes];
  QvNameTable names;
  for (int i = 0; i < kNodes; ++i) {
    nodes[i] = reinterpret_cast<QvNode*>(uintptr_t{0x10} * (i + 1));
    names.add(QvAtom("Wheel"), nodes[i], &slots[i]);
  }
  int32_t unnamed = -1;
  EXPECT_FALSE(names.remove(QvAtom("Wheel"), nodes[0], &unnamed));
  EXPECT_FALSE(names.remove(QvAtom("Axle"), nodes[0], &slots[0]));
  // First, last, middle: every removal moves another entry.
  for (int i : {0, 5, 2, 3, 1, 4}) {
    EXPECT_TRUE(names.remove(QvAtom("Wheel"), nodes[i], &slots[i])) << i;
    EXPECT_EQ(slots[i], -1);
    EXPECT_FALSE(names.remove(QvAtom("Wheel"), nodes[i], &slots[i])) << i;
  }
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
