// Workers that do their jobs on the fake event loop, after a time that the test chooses, or never.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "os/worker.h"
#include "support/fake_event_loop.h"

namespace support {

// Makes workers and remembers how many are alive. Outlives them.
class FakeWorkers {
 public:
  explicit FakeWorkers(FakeEventLoop& loop) : loop_(loop) {}

  // How long the next job takes; nothing: it hangs until comeBack().
  std::function<std::optional<int>()> delayMs = [] { return std::optional(20); };

  os::MakeWorker maker() {
    return [this] { return std::make_unique<Worker>(*this); };
  }

  // The job that has hung longest is done now. False when none hangs.
  bool comeBack() {
    while (!hanging_.empty()) {
      const std::function<void()> job = std::move(hanging_.front());
      hanging_.erase(hanging_.begin());
      if (!job) continue;
      job();
      return true;
    }
    return false;
  }

  int alive = 0;
  int made = 0;
  int jobs = 0;

 private:
  class Worker final : public os::Worker {
   public:
    explicit Worker(FakeWorkers& workers) : workers_(workers) {
      ++workers_.alive;
      ++workers_.made;
    }
    ~Worker() override { --workers_.alive; }

    void run(std::function<void()> job, std::function<void()> done) override {
      ++workers_.jobs;
      const auto finish = [job = std::move(job), done = std::move(done), here = std::weak_ptr<int>(here_)] {
        job();
        if (!here.expired()) done();
      };
      if (const std::optional<int> delay = workers_.delayMs()) {
        workers_.loop_.postAfter(*delay, finish);
      } else {
        workers_.hanging_.push_back(finish);
      }
    }

   private:
    FakeWorkers& workers_;
    std::shared_ptr<int> here_ = std::make_shared<int>(0);
  };

  FakeEventLoop& loop_;
  std::vector<std::function<void()>> hanging_;
};

}  // namespace support
