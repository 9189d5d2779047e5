#include "library/deck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <vector>

namespace {

using library::DealNext;
using library::Dealt;
using library::DeckPosition;
using library::PlaceInRound;

// Pictures dealt one after the other, as a show does it.
class Dealer {
 public:
  explicit Dealer(std::uint64_t chance) : chance_(chance) {}

  std::vector<std::string> paths;
  DeckPosition position;

  std::optional<Dealt> deal() {
    const auto dealt = DealNext(paths, position, [this] { return chance_(); });
    if (dealt) position = {dealt->roundSeed, paths[dealt->index]};
    return dealt;
  }

 private:
  std::mt19937_64 chance_;
};

std::vector<std::string> Pictures(int count) {
  std::vector<std::string> paths;
  for (int i = 0; i < count; ++i) paths.push_back("C:\\pictures\\" + std::to_string(i) + ".jpg");
  return paths;
}

TEST(Deck, ARoundShowsEveryPictureOnceInTheOrderOfTheirPlaces) {
  Dealer dealer(1);
  dealer.paths = Pictures(500);
  const auto first = dealer.deal();
  ASSERT_TRUE(first);
  std::vector<std::string> expected = dealer.paths;
  std::sort(expected.begin(), expected.end(), [&](const std::string& a, const std::string& b) {
    return PlaceInRound(first->roundSeed, a) < PlaceInRound(first->roundSeed, b);
  });
  std::vector<std::string> dealt = {dealer.position.lastPath};
  for (int i = 1; i < 500; ++i) {
    EXPECT_EQ(dealer.deal()->roundSeed, first->roundSeed);
    dealt.push_back(dealer.position.lastPath);
  }
  EXPECT_EQ(dealt, expected);
  EXPECT_NE(dealer.deal()->roundSeed, first->roundSeed);
}

TEST(Deck, RoundsAreInDifferentOrders) {
  Dealer dealer(2);
  dealer.paths = Pictures(12);
  std::set<std::vector<std::string>> orders;
  for (int round = 0; round < 50; ++round) {
    std::vector<std::string> order;
    for (int i = 0; i < 12; ++i) {
      dealer.deal();
      order.push_back(dealer.position.lastPath);
    }
    orders.insert(order);
  }
  EXPECT_EQ(orders.size(), 50U);
}

TEST(Deck, EveryPictureIsFirstOfARoundAboutEquallyOften) {
  const std::vector<std::string> paths = Pictures(10);
  std::mt19937_64 chance(3);
  std::map<std::size_t, int> firsts;
  for (int i = 0; i < 10'000; ++i) ++firsts[DealNext(paths, {}, [&] { return chance(); })->index];
  // A thousand each on average; five standard deviations are 150.
  for (const auto& [index, times] : firsts) EXPECT_NEAR(times, 1000, 150) << index;
}

TEST(Deck, APictureThatWasShownInNoRoundIsNotTheFirstOfTheNextEither) {
  std::mt19937_64 chance(11);
  for (int i = 0; i < 100; ++i) {
    const auto dealt =
        DealNext(Pictures(3), {.roundSeed = 0, .lastPath = Pictures(3)[1]}, [&] { return chance(); });
    EXPECT_NE(dealt->index, 1U);
  }
}

TEST(Deck, ASinglePictureFollowsItself) {
  Dealer dealer(4);
  dealer.paths = Pictures(1);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(dealer.deal()->index, 0U);
}

TEST(Deck, APictureThatTheListHasSeveralTimesComesOnceInARound) {
  Dealer dealer(5);
  dealer.paths = {"C:\\a.jpg", "C:\\b.jpg", "c:\\A.JPG", "C:\\a.jpg"};
  std::map<std::string, int> times;
  for (int i = 0; i < 20; ++i) {
    EXPECT_LT(dealer.deal()->index, 2U) << "the first of the same";
    ++times[dealer.position.lastPath];
  }
  EXPECT_EQ(times, (std::map<std::string, int>{{"C:\\a.jpg", 10}, {"C:\\b.jpg", 10}}));
}

TEST(Deck, OnePictureSeveralTimesInTheListIsStillOnePicture) {
  Dealer dealer(6);
  dealer.paths = {"C:\\a.jpg", "c:\\a.jpg"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(dealer.deal()->index, 0U);
}

TEST(Deck, AnEmptyListDealsNothing) {
  Dealer dealer(7);
  EXPECT_FALSE(dealer.deal());
  dealer.paths = {"", ""};
  EXPECT_FALSE(dealer.deal());
  dealer.paths = {"", "C:\\a.jpg", ""};
  EXPECT_EQ(dealer.deal()->index, 1U);
}

TEST(Deck, AShowGoesOnThoughItsLastPictureHasGone) {
  Dealer dealer(8);
  dealer.paths = Pictures(100);
  std::set<std::string> shown;
  for (int i = 0; i < 40; ++i) {
    dealer.deal();
    shown.insert(dealer.position.lastPath);
  }
  std::erase(dealer.paths, dealer.position.lastPath);
  for (int i = 40; i < 100; ++i) {
    dealer.deal();
    EXPECT_TRUE(shown.insert(dealer.position.lastPath).second);
  }
  EXPECT_EQ(shown.size(), 100U);
}

TEST(Deck, ASourceOfChanceThatRepeatsItselfStillBringsAnotherRound) {
  const std::vector<std::string> paths = {"C:\\a.jpg", "C:\\b.jpg"};
  DeckPosition position;
  for (int i = 0; i < 100; ++i) {
    const auto dealt = DealNext(paths, position, [] { return 7; });
    const std::string path = paths[dealt->index];
    EXPECT_NE(path, position.lastPath);
    position = {dealt->roundSeed, path};
  }
}

// What a round owes, kept the plain way: who was there when it began, who joined ahead of the show, who came.
class RoundBook {
 public:
  void begin(std::uint64_t seed, const std::vector<std::string>& paths) {
    seed_ = seed;
    shown_.clear();
    owed_ = {paths.begin(), paths.end()};
    ++rounds;
  }
  bool isOpen() const { return rounds > 0; }
  std::uint64_t seed() const { return seed_; }
  void joined(const std::string& path, const std::string& last) {
    if (PlaceInRound(seed_, path) > PlaceInRound(seed_, last)) owed_.insert(path);
  }
  void left(const std::string& path) { owed_.erase(path); }
  bool isFirstShowing(const std::string& path) { return shown_.insert(path).second; }
  bool nobodyIsOwed() const {
    return std::all_of(owed_.begin(), owed_.end(),
                       [this](const auto& path) { return shown_.contains(path); });
  }

  int rounds = 0;

 private:
  std::uint64_t seed_ = 0;
  std::set<std::string> owed_;
  std::set<std::string> shown_;
};

// One change of the folder while the show runs.
void ChangeList(Dealer& dealer, RoundBook& book, std::mt19937& chance, int& nextName) {
  const auto anyOf = [&](std::size_t count) { return static_cast<std::ptrdiff_t>(chance() % count); };
  const auto what = chance() % 3;  // 0: one joins, 1: one leaves, 2: one gets another name
  if (what != 0 && !dealer.paths.empty()) {
    const auto gone = dealer.paths.begin() + anyOf(dealer.paths.size());
    book.left(*gone);
    dealer.paths.erase(gone);
  }
  if (what != 1) {
    const std::string path = "C:\\pictures\\new" + std::to_string(nextName++) + ".jpg";
    dealer.paths.insert(dealer.paths.begin() + anyOf(dealer.paths.size() + 1), path);
    book.joined(path, dealer.position.lastPath);
  }
}

TEST(Deck, InTenThousandRoundsWithPicturesThatComeAndGoNothingComesTwiceAndNothingIsLeftOut) {
  std::mt19937 chance(9);
  Dealer dealer(10);
  dealer.paths = Pictures(6);
  RoundBook book;
  int nextName = 0;
  while (book.rounds < 10'000) {
    const std::string before = dealer.position.lastPath;
    const auto dealt = dealer.deal();
    if (!dealt) {
      ASSERT_TRUE(dealer.paths.empty());
    } else {
      const std::string& path = dealer.position.lastPath;
      if (!book.isOpen() || dealt->roundSeed != book.seed()) {
        ASSERT_TRUE(book.nobodyIsOwed()) << "round " << book.rounds;
        book.begin(dealt->roundSeed, dealer.paths);
        if (dealer.paths.size() > 1) {
          ASSERT_NE(path, before) << "over the border of round " << book.rounds;
        }
      }
      ASSERT_TRUE(book.isFirstShowing(path)) << path << " comes twice in round " << book.rounds;
    }
    const bool crowded = dealer.paths.size() > 12;
    if (chance() % (crowded ? 2 : 4) == 0) ChangeList(dealer, book, chance, nextName);
    if (crowded) {
      book.left(dealer.paths.back());
      dealer.paths.pop_back();
    }
  }
}

}  // namespace
