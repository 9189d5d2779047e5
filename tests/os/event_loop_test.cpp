#include <gtest/gtest.h>

#include "support/event_loop_contract.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"

namespace support {

namespace {

class FakeLoopPlace {
 public:
  os::EventLoop& loop() { return loop_; }
  const os::Clock& clock() { return clock_; }
  void post(std::function<void()> event) { loop_.post(std::move(event)); }
  void work(int ms) { clock_.advance(ms); }

 private:
  FakeClock clock_;
  FakeEventLoop loop_{clock_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(OnTheFake, EventLoopContract, FakeLoopPlace);

}  // namespace

}  // namespace support
