#include "fields/ExpressionStore.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumeric {
namespace {

// Longer than the texts a FieldExpression keeps inside itself, so every one
// is on the heap and an element destroyed without its text leaks.
std::string longText(int element, int component) {
  return "element " + std::to_string(element) + " component " + std::to_string(component) + " of the store";
}

void fill(ExpressionStore& store, int from, int to) {
  for (int i = from; i < to; ++i) {
    for (int k = 0; k < store.width(); ++k) store.element(i)[k].setText(longText(i, k).c_str());
  }
}

void expectFilled(ExpressionStore& store, int from, int to) {
  for (int i = from; i < to; ++i) {
    for (int k = 0; k < store.width(); ++k) {
      ASSERT_STREQ(store.element(i)[k].text(), longText(i, k).c_str()) << i << "/" << k;
    }
  }
}

TEST(ExpressionStoreTest, GrowingOneElementAtATimeNeverMovesAnElement) {
  ExpressionStore store(3);
  std::vector<FieldExpression*> addresses;
  for (int i = 0; i < 3000; ++i) {
    store.resize(i + 1);
    fill(store, i, i + 1);
    addresses.push_back(store.element(i));
  }
  ASSERT_EQ(store.size(), 3000);
  for (int i = 0; i < 3000; ++i) ASSERT_EQ(store.element(i), addresses[static_cast<size_t>(i)]) << i;
  expectFilled(store, 0, 3000);
}

TEST(ExpressionStoreTest, NewElementsHoldNoText) {
  ExpressionStore store(4);
  store.resize(100);
  for (int i = 0; i < 100; ++i) {
    for (int k = 0; k < 4; ++k) ASSERT_EQ(store.element(i)[k].text(), nullptr) << i << "/" << k;
  }
}

TEST(ExpressionStoreTest, OneLargeRequestGivesEveryElementAtOnce) {
  ExpressionStore store(1);
  const int count = 1 << 20;
  store.resize(count);
  ASSERT_EQ(store.size(), count);
  store.element(count - 1)->setNumber(7);
  store.element(0)->setNumber(1);
  EXPECT_STREQ(store.element(count - 1)->text(), "7");
  EXPECT_STREQ(store.element(0)->text(), "1");
  EXPECT_EQ(store.element(count / 2)->text(), nullptr);
}

TEST(ExpressionStoreTest, ShrinkingDestroysTheTailAndKeepsTheRest) {
  ExpressionStore store(2);
  store.resize(500);
  fill(store, 0, 500);
  store.resize(37);
  ASSERT_EQ(store.size(), 37);
  expectFilled(store, 0, 37);
  // Elements made live again start without text.
  store.resize(64);
  for (int i = 37; i < 64; ++i) ASSERT_EQ(store.element(i)[0].text(), nullptr) << i;
  store.resize(-5);
  EXPECT_EQ(store.size(), 0);
}

TEST(ExpressionStoreTest, AnEmptiedStoreIsReadyForTheNextRun) {
  ExpressionStore store(3);
  for (int run = 0; run < 3; ++run) {
    const int count = 1000 + 250 * run;
    store.resize(count);
    fill(store, 0, count);
    expectFilled(store, 0, count);
    store.resize(0);
    ASSERT_EQ(store.size(), 0);
  }
}

}  // namespace
}  // namespace lumeric
