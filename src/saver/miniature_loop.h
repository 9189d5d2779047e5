// The events and the time of a show in small.
#pragma once

#include <cstdint>
#include <functional>

#include "os/clock.h"
#include "os/inner_loop.h"

namespace saver {

// While it hurries, short waits, such as those of an effect, are over at once: what nobody sees takes no
// time.
class MiniatureLoop final : public os::InnerLoop, public os::Clock {
 public:
  // Both outlive this, and count alike.
  MiniatureLoop(os::EventLoop& outer, const os::Clock& clock) : InnerLoop(outer), clock_(clock) {}

  void setHurry(bool hurries) { hurries_ = hurries; }

  // A handler of the show has ended.
  std::function<void()> onHandled;

  // A look that follows another one without a wait between sees the time go on. So a choice that waits for
  // the clock, as that of an effect does, does not hold the thread.
  os::LocalTime now() const override;
  std::int64_t tickMs() const override { return clock_.tickMs() + savedMs_; }

  void runPending() override;
  void waitUntil(std::int64_t deadlineMs) override;

 protected:
  void handled() override {
    if (onHandled) onHandled();
  }

 private:
  const os::Clock& clock_;
  std::int64_t savedMs_ = 0;  // by hurrying
  bool hurries_ = true;
  mutable int looks_ = 0;  // at the time, since the last wait
};

}  // namespace saver
