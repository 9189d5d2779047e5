// Any order of wishes, drops, rests, slow, hanging and broken pictures, late arrivals and ends.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>

#include "pictures/ahead_loader.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/fake_pictures.h"
#include "support/fake_workers.h"

namespace pictures {
namespace {

class AheadLoaderRun {
 public:
  explicit AheadLoaderRun(unsigned seed) : random_(seed) {
    for (int i = 0; i < kPictures; ++i) {
      const std::string path = "p" + std::to_string(i);
      if (i % 5 == 4) {
        files_->addBroken(path, {4, 3});
      } else if (i % 5 != 3) {  // every fifth one is missing
        files_->add(path, {4 + i, 3}, base::Rgb(i, 0, 0));
      }
    }
    workers_.delayMs = [this] {
      const unsigned kind = below(10);
      if (kind == 0) return std::optional<int>();
      return std::optional<int>(static_cast<int>(kind == 1 ? below(25'000) : below(400)));
    };
    ahead_.emplace(files_, loop_, workers_.maker());
  }

  void run() {
    const unsigned steps = 1 + below(30);
    for (unsigned i = 0; i < steps; ++i) step();
    if (below(2) == 0) {
      ahead_.reset();
      due_.clear();
      while (workers_.comeBack()) continue;
      loop_.runFor(30'000);
      EXPECT_EQ(workers_.alive, 0);
      EXPECT_EQ(loop_.timersRunning(), 0);
      return;
    }
    ahead_->goOn();
    isClosing_ = true;
    // One that was dropped may still be under way before the two that stand.
    loop_.runFor(3 * AheadLoader::kPatienceMs + 10);
    EXPECT_TRUE(due_.empty()) << "every wish that was not dropped has been answered";
  }

 private:
  static constexpr int kPictures = 12;

  unsigned below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }

  void step() {
    switch (below(7)) {
      case 0:
      case 1:
        wish();
        break;
      case 2:
        if (!due_.empty()) {
          const auto dropped = std::next(due_.begin(), below(static_cast<unsigned>(due_.size())));
          ahead_->drop(dropped->first);
          due_.erase(dropped);
        }
        break;
      case 3:
        workers_.comeBack();
        break;
      case 4:
        if (below(3) == 0)
          ahead_->rest();
        else
          ahead_->goOn();
        break;
      default:
        loop_.runFor(below(4) == 0 ? below(12'000) : below(300));
    }
    EXPECT_LE(due_.size(), AheadLoader::kMostWishes);
    EXPECT_LE(workers_.alive, static_cast<int>(AheadLoader::kMostHanging) + 1);
  }

  void wish() {
    // Two stand at most, so that none of them is pushed out.
    if (due_.size() == AheadLoader::kMostWishes) return;
    const int number = static_cast<int>(below(kPictures));
    const base::PixelSize box{1 + static_cast<int>(below(2)), 1};
    const auto ticket = std::make_shared<AheadLoader::Ticket>(0);
    Wish wish{"p" + std::to_string(number), box, [box](const Picture& file) { return DrawAhead(file, box); }};
    *ticket = ahead_->wish(std::move(wish), [this, ticket, number, box](const SharedPicture& picture) {
      EXPECT_EQ(due_.erase(*ticket), 1U) << "answered once, and not when it was dropped";
      if (!picture) return;
      EXPECT_TRUE(number % 5 < 3);
      EXPECT_EQ(picture->size().width, 4 + number);
      EXPECT_EQ(picture->drawnAt(box)->at(0, 0), base::OpaquePixel(base::Rgb(number, 0, 0)));
      if (!isClosing_ && below(4) == 0) this->wish();
    });
    due_[*ticket] = number;
  }

  std::mt19937 random_;
  support::FakeClock clock_;
  support::FakeEventLoop loop_{clock_};
  support::FakeWorkers workers_{loop_};
  std::shared_ptr<support::FakePictures> files_ = std::make_shared<support::FakePictures>();
  std::optional<AheadLoader> ahead_;
  std::map<AheadLoader::Ticket, int> due_;
  bool isClosing_ = false;  // nothing more is wished
};

TEST(AheadLoaderMonkey, EveryOrderOfEventsAnswersEachWishOnceAndLeavesNothingBehind) {
  for (unsigned seed = 0; seed < 100'000 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    AheadLoaderRun(seed).run();
  }
}

}  // namespace
}  // namespace pictures
