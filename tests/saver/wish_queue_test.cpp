#include "saver/wish_queue.h"

#include <gtest/gtest.h>

#include <vector>

namespace saver {
namespace {

constexpr ShowWish kNext = ShowWish::Next;
constexpr ShowWish kBack = ShowWish::Back;
constexpr ShowWish kHold = ShowWish::Hold;

std::vector<ShowWish> All(WishQueue queue) {
  std::vector<ShowWish> all;
  for (; queue.first(); queue.takeFirst(0)) all.push_back(*queue.first());
  return all;
}

TEST(WishQueue, KeepsWishesInTheirOrder) {
  WishQueue queue;
  for (const ShowWish wish : {kNext, kHold, kBack, ShowWish::NeverAgain}) queue.add(wish);
  EXPECT_EQ(All(queue), (std::vector<ShowWish>{kNext, kHold, kBack, ShowWish::NeverAgain}));
}

TEST(WishQueue, OfStepsThatFollowEachOtherTheLastStands) {
  WishQueue queue;
  for (const ShowWish wish : {kNext, kNext, kBack, kHold, kNext}) queue.add(wish);
  EXPECT_EQ(All(queue), (std::vector<ShowWish>{kBack, kHold, kNext}));
}

TEST(WishQueue, TakesTenStepsASecondAtMost) {
  WishQueue queue;
  queue.add(kNext);
  EXPECT_TRUE(queue.isFirstDue(5000));
  queue.takeFirst(5000);
  queue.add(kBack);
  EXPECT_FALSE(queue.isFirstDue(5099));
  EXPECT_TRUE(queue.isFirstDue(5100));
  queue.takeFirst(5100);
  queue.add(kHold);
  EXPECT_TRUE(queue.isFirstDue(5101)) << "what is no step is due at once";
}

TEST(WishQueue, HearsAHeldKeyWhenItsStepCanBeTakenAndNothingWaits) {
  WishQueue queue;
  EXPECT_FALSE(queue.addRepeated(kHold, 1000));
  EXPECT_FALSE(queue.addRepeated(ShowWish::NeverAgain, 1000)) << "a held key confirms nothing";
  EXPECT_TRUE(queue.addRepeated(kNext, 1000));
  EXPECT_FALSE(queue.addRepeated(kNext, 1010)) << "one waits";
  queue.takeFirst(1010);
  EXPECT_FALSE(queue.addRepeated(kNext, 1109)) << "too early";
  EXPECT_TRUE(queue.isEmpty());
  EXPECT_TRUE(queue.addRepeated(kNext, 1110));
}

TEST(WishQueue, LosesWhatComesWhenManyWait) {
  WishQueue queue;
  for (std::size_t i = 0; i < 3 * WishQueue::kMost; ++i) queue.add(kHold);
  EXPECT_EQ(All(queue).size(), WishQueue::kMost);
}

}  // namespace
}  // namespace saver
