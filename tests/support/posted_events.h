// Events that threads post to the test's own, and doors that threads wait at.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace support {

// After this a thread that did not answer counts as one that never will.
constexpr std::chrono::seconds kThreadLimit{60};

class PostedEvents {
 public:
  std::function<void(std::function<void()>)> poster() {
    return [this](std::function<void()> event) {
      const std::lock_guard lock(mutex_);
      events_.push_back(std::move(event));
      arrived_.notify_one();
    };
  }

  // Runs the next event on this thread, waiting for it; false when none came in a long time.
  bool runOne() {
    std::function<void()> event;
    {
      std::unique_lock lock(mutex_);
      if (!arrived_.wait_for(lock, kThreadLimit, [&] { return !events_.empty(); })) return false;
      event = std::move(events_.front());
      events_.pop_front();
    }
    event();
    return true;
  }

  // Runs what is there, without waiting.
  void runAll() {
    while (!isEmpty()) runOne();
  }

 private:
  bool isEmpty() {
    const std::lock_guard lock(mutex_);
    return events_.empty();
  }

  std::mutex mutex_;
  std::condition_variable arrived_;
  std::deque<std::function<void()>> events_;
};

class Door {
 public:
  void open() {
    const std::lock_guard lock(mutex_);
    isOpen_ = true;
    opened_.notify_all();
  }
  bool wait() {
    std::unique_lock lock(mutex_);
    return opened_.wait_for(lock, kThreadLimit, [&] { return isOpen_; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable opened_;
  bool isOpen_ = false;
};

}  // namespace support
