// The loader on real threads: what the thread sanitizer watches.
#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <thread>

#include "os/worker_thread.h"
#include "pictures/ahead_loader.h"
#include "support/posted_events.h"

namespace pictures {
namespace {

constexpr base::PixelSize kSmallBox{16, 12};

// Timers that fire when the test says so.
class HandLoop final : public os::EventLoop {
 public:
  void runPending() override {}
  void waitUntil(std::int64_t) override {}
  TimerId startTimer(int, std::function<void()> tick) override {
    timers_[++last_] = std::move(tick);
    return last_;
  }
  void stopTimer(TimerId timer) override { timers_.erase(timer); }
  void run() override {}
  void quit() override {}
  bool isQuitting() const override { return false; }
  void setErrorHandler(std::function<void(const std::exception&)>) override {}
  void dispatch(const std::function<void()>& handler) override { handler(); }

  bool isRunning() const { return !timers_.empty(); }
  void fire() {
    const auto tick = timers_.begin()->second;
    tick();
  }

 private:
  std::map<TimerId, std::function<void()>> timers_;
  TimerId last_ = 0;
};

class OneColor final : public Picture {
 public:
  base::PixelSize size() const override { return {400, 300}; }
  base::SharedBitmap drawnAt(base::PixelSize size) const override {
    return std::make_shared<base::Bitmap>(size, base::OpaquePixel(base::Rgb(1, 2, 3)));
  }
};

// Used on loading threads. "gate" waits for its door; "missing" is not there.
class GatedLoader final : public PictureLoader {
 public:
  SharedPicture open(const std::string& path) override {
    ++opened;
    if (path.starts_with("gate")) {
      begun.open();
      gate.wait();
    }
    return path == "missing" ? nullptr : std::make_shared<OneColor>();
  }

  support::Door begun;
  support::Door gate;
  std::atomic<int> opened = 0;
};

class AheadLoaderThreads : public testing::Test {
 protected:
  AheadLoaderThreads() {
    ahead = std::make_unique<AheadLoader>(
        files, loop, [this] { return std::make_unique<os::WorkerThread>(events.poster(), nullptr); });
  }
  ~AheadLoaderThreads() override {
    files->gate.open();
    ahead.reset();
    while (os::WorkerThread::leftBehind() > 0) std::this_thread::yield();
  }

  AheadLoader::Ticket wish(const std::string& path) {
    return ahead->wish({path, kSmallBox, [](const Picture& file) { return DrawAhead(file, kSmallBox); }},
                       [this, path](const SharedPicture& picture) {
                         answers += path + (picture ? "+ " : "- ");
                         if (picture) {
                           EXPECT_EQ(picture->drawnAt(kSmallBox)->size(), kSmallBox);
                         }
                       });
  }

  HandLoop loop;
  support::PostedEvents events;
  std::shared_ptr<GatedLoader> files = std::make_shared<GatedLoader>();
  std::unique_ptr<AheadLoader> ahead;
  std::string answers;
};

TEST_F(AheadLoaderThreads, PicturesComeFromTheThreadInTheirOrder) {
  for (int i = 0; i < 200; ++i) {
    answers.clear();
    wish("a");
    wish("missing");
    ASSERT_TRUE(events.runOne());
    ASSERT_TRUE(events.runOne());
    ASSERT_EQ(answers, "a+ missing- ");
  }
}

TEST_F(AheadLoaderThreads, AThreadThatHangsIsReplacedAndItsPictureIsKeptWhenItComes) {
  wish("gate");
  ASSERT_TRUE(files->begun.wait());
  loop.fire();
  EXPECT_EQ(answers, "gate- ");
  wish("a");
  ASSERT_TRUE(events.runOne());
  EXPECT_EQ(answers, "gate- a+ ");
  files->gate.open();
  ASSERT_TRUE(events.runOne());
  wish("gate");
  loop.fire();
  EXPECT_EQ(answers, "gate- a+ gate+ ");
  EXPECT_EQ(files->opened, 2);
}

TEST_F(AheadLoaderThreads, TheEndDoesNotWaitForAThreadThatHangs) {
  wish("gate");
  ASSERT_TRUE(files->begun.wait());
  ahead.reset();
  EXPECT_EQ(os::WorkerThread::leftBehind(), 1);
  EXPECT_EQ(answers, "");
}

TEST_F(AheadLoaderThreads, WishesDropsAndPatienceInAnyOrderKeepTheThreadsApart) {
  std::mt19937 random(11);
  files->gate.open();
  AheadLoader::Ticket last = 0;
  for (int i = 0; i < 3000; ++i) {
    switch (random() % 5) {
      case 0:
      case 1:
        last = wish(random() % 3 == 0 ? "missing" : "gate" + std::to_string(random() % 4));
        break;
      case 2:
        ahead->drop(last);
        break;
      case 3:
        events.runAll();
        break;
      default:
        if (loop.isRunning() && random() % 4 == 0) loop.fire();
    }
  }
}

}  // namespace
}  // namespace pictures
