#include "expr/TermArena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace lumeric {
namespace {

bool alignedForDoubles(const void* p) { return reinterpret_cast<uintptr_t>(p) % 8 == 0; }

TEST(TermArenaTest, GrowsByChunksAndKeepsEveryBlockIntact) {
  TermArena arena;
  std::vector<unsigned char*> blocks;
  // Far more than one chunk, in sizes that are not multiples of 8.
  for (int k = 0; k < 5000; ++k) {
    size_t size = 1 + static_cast<size_t>(k % 61);
    auto* block = static_cast<unsigned char*>(arena.allocate(size));
    ASSERT_TRUE(alignedForDoubles(block));
    std::memset(block, k & 0xff, size);
    blocks.push_back(block);
  }
  for (int k = 0; k < 5000; ++k) {
    size_t size = 1 + static_cast<size_t>(k % 61);
    for (size_t i = 0; i < size; ++i) ASSERT_EQ(blocks[static_cast<size_t>(k)][i], k & 0xff) << k;
  }
  EXPECT_GT(arena.bytesInUse(), 5000u * 8);
  arena.clear();
  EXPECT_EQ(arena.bytesInUse(), 0u);
}

TEST(TermArenaTest, LargeRequestsGetTheirOwnChunkAndSmallOnesContinue) {
  TermArena arena;
  void* small = arena.allocate(16);
  const size_t large = 1 << 20;
  auto* big = static_cast<char*>(arena.allocate(large));
  std::memset(big, 7, large);
  EXPECT_EQ(arena.bytesInUse(), 16 + large);
  void* after = arena.allocate(8);
  EXPECT_NE(after, nullptr);
  EXPECT_NE(small, after);
  EXPECT_EQ(big[large - 1], 7);
}

TEST(TermArenaTest, ReleaseReturnsToTheMarkAndTheMemoryIsReused) {
  TermArena arena;
  arena.allocate(24);
  TermArena::Mark mark = arena.mark();
  void* first = arena.allocate(40);
  for (int k = 0; k < 100; ++k) arena.allocate(4096);  // into further chunks
  arena.release(mark);
  EXPECT_EQ(arena.bytesInUse(), 24u);
  EXPECT_EQ(arena.allocate(40), first);
}

TEST(TermArenaTest, ReallocateGrowsTheLastBlockInPlaceOtherwiseCopies) {
  TermArena arena;
  auto* block = static_cast<char*>(arena.allocate(8));
  std::memcpy(block, "abcdefg", 8);
  EXPECT_EQ(arena.reallocate(block, 8, 64), block);
  arena.allocate(8);  // the block is no longer the last one
  auto* moved = static_cast<char*>(arena.reallocate(block, 64, 128));
  EXPECT_NE(moved, block);
  EXPECT_STREQ(moved, "abcdefg");
}

TEST(TermArenaTest, ClearAtTheEndOfARunLeavesAnArenaReadyForTheNext) {
  TermArena arena;
  for (int run = 0; run < 3; ++run) {
    for (int k = 0; k < 1000; ++k) arena.allocate(100);
    EXPECT_GE(arena.bytesInUse(), 100000u);
    arena.clear();
    EXPECT_EQ(arena.bytesInUse(), 0u);
  }
}

}  // namespace
}  // namespace lumeric
