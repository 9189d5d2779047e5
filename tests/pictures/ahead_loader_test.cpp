#include "pictures/ahead_loader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/fake_pictures.h"
#include "support/fake_workers.h"

namespace pictures {
namespace {

constexpr base::PixelSize kBox{40, 30};

Wish WishFor(const std::string& path, base::PixelSize box = kBox) {
  return {path, box, [box](const Picture& file) { return DrawAhead(file, box); }};
}

class AheadLoaderTest : public testing::Test {
 protected:
  AheadLoaderTest() {
    for (const char* path : {"a", "b", "c", "d"}) files->add(path, {400, 300}, base::Rgb(path[0], 0, 0));
    files->addBroken("broken", {8, 6});
    ahead.emplace(files, loop, workers.maker());
    ahead->onFailure = [this](const std::string& path, PictureFailure failure) {
      failures.push_back(path + std::to_string(static_cast<int>(failure)));
    };
  }

  AheadLoader::Ticket wish(const std::string& path, base::PixelSize box = kBox) {
    return ahead->wish(WishFor(path, box), [this, path](const SharedPicture& picture) {
      answers.push_back(path + (picture ? "+" : "-"));
      last = picture;
    });
  }

  void hangNext() {
    workers.delayMs = [] { return std::optional<int>(); };
  }
  void answerAfter(int ms) {
    workers.delayMs = [ms] { return std::optional(ms); };
  }

  support::FakeClock clock;
  support::FakeEventLoop loop{clock};
  support::FakeWorkers workers{loop};
  std::shared_ptr<support::FakePictures> files = std::make_shared<support::FakePictures>();
  std::optional<AheadLoader> ahead;
  std::vector<std::string> answers;
  std::vector<std::string> failures;
  SharedPicture last;
};

using Texts = std::vector<std::string>;

TEST(DrawAhead, GivesTheFactsThatItWasGivenAndAsksForNoOthers) {
  support::FakePictures files;
  files.add("a", {40, 30}, base::kWhite);
  files.facts["a"].title = "Lake";
  const SharedPicture file = files.open("a");
  EXPECT_EQ(DrawAhead(*file, {4, 3})->facts(), PictureFacts());
  EXPECT_TRUE(files.factsAsked.empty());
  EXPECT_EQ(DrawAhead(*file, {4, 3}, file->facts())->facts().title, "Lake");
  EXPECT_EQ(files.factsAsked.size(), 1U);
}

TEST_F(AheadLoaderTest, AWishIsAnsweredFromTheLoopWithThePictureThatWasMadeOfTheFile) {
  wish("a");
  EXPECT_TRUE(answers.empty()) << "never before the loop runs";
  loop.runFor(30);
  EXPECT_EQ(answers, Texts{"a+"});
  EXPECT_EQ(last->size(), (base::PixelSize{400, 300}));
  EXPECT_EQ(last->drawnAt(kBox)->at(0, 0), base::OpaquePixel(base::Rgb('a', 0, 0)));
  EXPECT_EQ(files->drawnSizes, std::vector<base::PixelSize>{kBox});
}

TEST_F(AheadLoaderTest, APictureThatIsReadyIsDrawnAtAnyOtherSizeWithoutItsFile) {
  wish("a");
  loop.runFor(30);
  EXPECT_EQ(last->drawnAt({13, 11})->size(), (base::PixelSize{13, 11}));
  EXPECT_EQ(files->opened.size(), 1U);
  EXPECT_EQ(files->drawnSizes.size(), 1U);
}

TEST_F(AheadLoaderTest, TwoWishesAreAnsweredInTheirOrderOneAfterTheOther) {
  wish("a");
  wish("b");
  EXPECT_EQ(workers.jobs, 1);
  loop.runFor(100);
  EXPECT_EQ(answers, (Texts{"a+", "b+"}));
  EXPECT_EQ(workers.made, 1);
}

TEST_F(AheadLoaderTest, AThirdWishTakesThePlaceOfTheOldestThatWasNotBegun) {
  wish("a");
  wish("b");
  wish("c");
  loop.runFor(100);
  EXPECT_EQ(answers, (Texts{"a+", "c+"}));
}

TEST_F(AheadLoaderTest, ADroppedWishIsNeitherLoadedNorAnswered) {
  wish("a");
  ahead->drop(wish("b"));
  loop.runFor(100);
  EXPECT_EQ(answers, Texts{"a+"});
  EXPECT_EQ(files->opened, Texts{"a"});
}

TEST_F(AheadLoaderTest, AWishThatIsDroppedWhileItIsLoadedIsNotAnsweredAndTheNextOneIs) {
  const auto ticket = wish("a");
  wish("b");
  ahead->drop(ticket);
  loop.runFor(100);
  EXPECT_EQ(answers, Texts{"b+"});
}

TEST_F(AheadLoaderTest, AWishThatWasDroppedAndComesAgainIsNotLoadedTwice) {
  ahead->drop(wish("a"));
  wish("a");
  loop.runFor(100);
  EXPECT_EQ(answers, Texts{"a+"});
  EXPECT_EQ(files->opened, Texts{"a"});
}

TEST_F(AheadLoaderTest, WhatCannotBeOpenedOrDrawnIsToldOfAndAnsweredWithNull) {
  wish("missing");
  loop.runFor(100);
  wish("broken");
  loop.runFor(100);
  EXPECT_EQ(answers, (Texts{"missing-", "broken-"}));
  EXPECT_EQ(failures, (Texts{"missing0", "broken1"}));
}

TEST_F(AheadLoaderTest, APictureThatIsTooLargeForTheMemoryIsAnsweredWithNull) {
  ahead->wish({"a", kBox, [](const Picture&) -> SharedPicture { throw std::bad_alloc(); }},
              [this](const SharedPicture& picture) { answers.push_back(picture ? "+" : "-"); });
  loop.runFor(100);
  EXPECT_EQ(answers, Texts{"-"});
  EXPECT_EQ(failures, Texts{"a1"});
}

TEST_F(AheadLoaderTest, AfterTenSecondsAPictureIsPassedOverAndTheOthersComeFromAnotherThread) {
  hangNext();
  wish("a");
  answerAfter(20);
  wish("b");
  loop.runFor(9'990);
  EXPECT_TRUE(answers.empty());
  loop.runFor(100);
  EXPECT_EQ(answers, (Texts{"a-", "b+"}));
  EXPECT_EQ(failures, Texts{"a2"});
  EXPECT_EQ(workers.alive, 2);
}

TEST_F(AheadLoaderTest, APictureThatComesLateIsKeptForItsNextTurn) {
  hangNext();
  wish("a");
  loop.runFor(11'000);
  ASSERT_TRUE(workers.comeBack());
  answers.clear();
  hangNext();
  wish("a");
  EXPECT_TRUE(answers.empty());
  loop.runFor(10);
  EXPECT_EQ(answers, Texts{"a+"});
  EXPECT_EQ(files->opened, Texts{"a"});
  EXPECT_EQ(workers.alive, 1) << "the thread that came back is the loader's again";
}

TEST_F(AheadLoaderTest, AWishForAPictureOnWhichAThreadHangsTakesNoSecondThread) {
  hangNext();
  wish("a");
  loop.runFor(11'000);
  wish("a");
  loop.runFor(5'000);
  EXPECT_EQ(workers.jobs, 1);
  ASSERT_TRUE(workers.comeBack());
  EXPECT_EQ(answers, (Texts{"a-", "a+"}));
  wish("b");
  answerAfter(5);
  loop.runFor(20'000);
}

TEST_F(AheadLoaderTest, ThreadsThatHangAreBoundedAndThenEverythingIsPassedOver) {
  hangNext();
  for (std::size_t i = 0; i < AheadLoader::kMostHanging + 3; ++i) {
    const std::string path = "p" + std::to_string(i);
    files->add(path, {4, 3}, base::Rgb(1, 2, 3));
    wish(path);
    loop.runFor(10'010);
  }
  EXPECT_EQ(answers.size(), AheadLoader::kMostHanging + 3);
  EXPECT_EQ(workers.alive, static_cast<int>(AheadLoader::kMostHanging));
  answerAfter(5);
  ASSERT_TRUE(workers.comeBack());
  answers.clear();
  wish("b");
  loop.runFor(100);
  EXPECT_EQ(answers, Texts{"b+"}) << "one that came back is there again";
}

TEST_F(AheadLoaderTest, AMissingPictureIsToldApartWhereSomebodyKnows) {
  ahead.emplace(files, loop, workers.maker(), [](const std::string& path) { return path == "in use"; });
  ahead->onFailure = [this](const std::string& path, PictureFailure failure) {
    failures.push_back(path + (failure == PictureFailure::Missing ? ": missing" : ": not opened"));
  };
  wish("in use");
  wish("gone");
  loop.runFor(100);
  EXPECT_EQ(failures, (Texts{"in use: not opened", "gone: missing"}));
}

TEST_F(AheadLoaderTest, InARestNothingIsBegunOrAnsweredAndAllOfItComesAfterIt) {
  wish("a");
  ahead->rest();
  wish("b");
  loop.runFor(100'000);
  EXPECT_TRUE(answers.empty());
  EXPECT_EQ(workers.jobs, 1);
  EXPECT_EQ(loop.timersRunning(), 0);
  ahead->goOn();
  EXPECT_EQ(answers, Texts{"a+"});
  loop.runFor(100);
  EXPECT_EQ(answers, (Texts{"a+", "b+"}));
  EXPECT_EQ(files->opened, (Texts{"a", "b"}));
}

TEST_F(AheadLoaderTest, AfterARestAPictureHasItsTenSecondsAnew) {
  hangNext();
  wish("a");
  loop.runFor(9'000);
  ahead->rest();
  loop.runFor(100'000);
  ahead->goOn();
  loop.runFor(9'900);
  EXPECT_TRUE(answers.empty());
  loop.runFor(200);
  EXPECT_EQ(answers, Texts{"a-"});
}

TEST_F(AheadLoaderTest, WhatIsDroppedInARestIsNotAnsweredAfterIt) {
  const auto ticket = wish("a");
  ahead->rest();
  loop.runFor(100);
  ahead->drop(ticket);
  ahead->goOn();
  loop.runFor(100);
  EXPECT_TRUE(answers.empty());
  EXPECT_EQ(loop.timersRunning(), 0);
}

TEST_F(AheadLoaderTest, APictureThatComesLateInARestIsKept) {
  hangNext();
  wish("a");
  loop.runFor(11'000);
  ahead->rest();
  ASSERT_TRUE(workers.comeBack());
  ahead->goOn();
  answers.clear();
  wish("a");
  loop.runFor(10);
  EXPECT_EQ(answers, Texts{"a+"});
}

TEST_F(AheadLoaderTest, AnAnswerMayWishAndDropAgain) {
  std::vector<std::string> order;
  const auto second = [&](const SharedPicture&) { order.push_back("second"); };
  ahead->wish(WishFor("a"), [&](const SharedPicture&) {
    order.push_back("first");
    ahead->drop(ahead->wish(WishFor("c"), second));
    ahead->wish(WishFor("b"), second);
  });
  loop.runFor(200);
  EXPECT_EQ(order, (Texts{"first", "second"}));
}

TEST_F(AheadLoaderTest, AnswersThatComeAfterItsEndTouchNothing) {
  hangNext();
  wish("a");
  loop.runFor(11'000);
  answerAfter(50);
  wish("b");
  ahead.reset();
  answers.clear();
  workers.comeBack();
  loop.runFor(1000);
  EXPECT_TRUE(answers.empty());
  EXPECT_EQ(workers.alive, 0);
  EXPECT_EQ(loop.timersRunning(), 0);
}

}  // namespace
}  // namespace pictures
