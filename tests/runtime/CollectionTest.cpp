#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "runtime/KeyedCollection.h"
#include "runtime/Random.h"
#include "support/FixedClock.h"
#include "support/Thrown.h"

namespace {

using runtime::ErrorNumber;
using support::thrownNumber;
using Numbers = runtime::KeyedCollection<int>;

Numbers tenTwentyThirty() {
  Numbers numbers;
  numbers.Add(std::make_shared<int>(10), QStringLiteral("Ten"));
  numbers.Add(std::make_shared<int>(20));
  numbers.Add(std::make_shared<int>(30), QStringLiteral("Thirty"));
  return numbers;
}

TEST(KeyedCollection, FindsByPositionAndByKeyWhateverItsCase) {
  const Numbers numbers = tenTwentyThirty();
  EXPECT_EQ(*numbers.Item(2), 20);
  EXPECT_EQ(*numbers.Item(QStringLiteral("tHIRTY")), 30);
  EXPECT_EQ(numbers.find(QStringLiteral("forty")), nullptr);
  EXPECT_EQ(thrownNumber([&] { std::ignore = numbers.Item(0); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(thrownNumber([&] { std::ignore = numbers.Item(4); }), ErrorNumber::SubscriptOutOfRange);
  EXPECT_EQ(thrownNumber([&] { std::ignore = numbers.Item(QString()); }), ErrorNumber::InvalidCall);
}

TEST(KeyedCollection, KeysFollowTheirMembersAfterARemoval) {
  Numbers numbers = tenTwentyThirty();
  numbers.Remove(QStringLiteral("ten"));
  EXPECT_EQ(*numbers.Item(QStringLiteral("thirty")), 30);
  numbers.Remove(1);
  EXPECT_EQ(*numbers.Item(QStringLiteral("thirty")), 30);
  EXPECT_EQ(thrownNumber([&] { numbers.Remove(QStringLiteral("ten")); }), ErrorNumber::InvalidCall);
  numbers.Add(std::make_shared<int>(11), QStringLiteral("ten"));
  EXPECT_TRUE(std::equal(numbers.begin(), numbers.end(), std::begin({30, 11}),
                         [](const std::shared_ptr<int>& member, int value) { return *member == value; }));
}

TEST(Random, GeneratorsOfTheSameMomentDiffer) {
  const support::FixedClock clock(QDateTime(QDate(2026, 11, 15), QTime(8, 0)));
  std::set<float> first;
  for (int i = 0; i < 1000; ++i) first.insert(runtime::Random().next());
  EXPECT_GT(first.size(), 990U);
  EXPECT_EQ(runtime::Random(5).next(), runtime::Random(5).next());
}

}  // namespace
