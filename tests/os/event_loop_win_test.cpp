#include "os/event_loop_win.h"

#include <gtest/gtest.h>

#include "os/clock_win.h"
#include "support/event_loop_contract.h"
#include "support/primary_screen_win.h"

namespace support {

namespace {

constexpr UINT kPosted = WM_APP + 1;

// A window whose posted messages are functions to run. The loop's border is around them.
class Poster {
 public:
  explicit Poster(os::EventLoopWin& loop) : loop_(loop) {
    WNDCLASSW description{};
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"LumoraTestPoster";
    RegisterClassW(&description);
    window_.reset(CreateWindowExW(0, L"LumoraTestPoster", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                  description.hInstance, nullptr));
    SetWindowLongPtrW(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }

  void post(std::function<void()> event) {
    events_.push_back(std::move(event));
    PostMessageW(window_.get(), kPosted, events_.size() - 1, 0);
  }
  HWND window() const { return window_.get(); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<Poster*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != kPosted) return DefWindowProcW(window, message, wParam, lParam);
    self->loop_.dispatch(self->events_.at(wParam));
    return 0;
  }

  os::EventLoopWin& loop_;
  os::OwnedWindow window_;
  std::vector<std::function<void()>> events_;
};

class RealLoopPlace {
 public:
  os::EventLoop& loop() { return loop_; }
  const os::Clock& clock() { return clock_; }
  void post(std::function<void()> event) { poster_.post(std::move(event)); }
  void work(int ms) { Sleep(static_cast<DWORD>(ms)); }  // the work that takes this long is the test's subject

 private:
  os::ClockWin clock_;
  os::EventLoopWin loop_{clock_};
  Poster poster_{loop_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(OnTheSystem, EventLoopContract, RealLoopPlace);

struct EventLoopWinTest : testing::Test {
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  Poster poster{loop};
};

using EventLoopWin = EventLoopWinTest;

TEST_F(EventLoopWin, TheBorderStopsWhatIsNoExceptionToo) {
  std::string told;
  loop.setErrorHandler([&](const std::exception& error) { told = error.what(); });
  loop.dispatch([] { throw 42; });
  EXPECT_FALSE(told.empty());
}

TEST_F(EventLoopWin, AnErrorInAWindowProcedureReachesTheHandlerThroughTheBorder) {
  int errors = 0;
  loop.setErrorHandler([&](const std::exception&) { ++errors; });
  poster.post([] { throw base::Overflow(); });
  poster.post([] {});
  loop.runPending();
  EXPECT_EQ(errors, 1);
}

TEST_F(EventLoopWin, TheErrorHandlerMayReplaceItself) {
  int second = 0;
  loop.setErrorHandler(
      [&](const std::exception&) { loop.setErrorHandler([&](const std::exception&) { ++second; }); });
  loop.dispatch([] { throw base::Overflow(); });
  loop.dispatch([] { throw base::Overflow(); });
  EXPECT_EQ(second, 1);
}

TEST_F(EventLoopWin, AFilterSeesMessagesFirstAndMayKeepThem) {
  int seen = 0;
  int ran = 0;
  bool keep = true;
  const int filter = loop.addMessageFilter([&](MSG& message) {
    if (message.message != kPosted) return false;
    ++seen;
    return keep;
  });
  poster.post([&] { ++ran; });
  loop.runPending();
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(ran, 0);
  keep = false;
  poster.post([&] { ++ran; });
  loop.waitUntil(clock.tickMs() + 1000);
  EXPECT_EQ(ran, 1);
  loop.removeMessageFilter(filter);
  poster.post([&] { ++ran; });
  loop.runPending();
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(ran, 2);
}

TEST_F(EventLoopWin, AFilterMayRemoveItselfAndTheOneBehindIt) {
  int first = 0;
  int second = 0;
  int numbers[2] = {};
  numbers[0] = loop.addMessageFilter([&](MSG&) {
    ++first;
    loop.removeMessageFilter(numbers[0]);
    loop.removeMessageFilter(numbers[1]);
    return false;
  });
  numbers[1] = loop.addMessageFilter([&](MSG&) {
    ++second;
    return false;
  });
  poster.post([] {});
  poster.post([] {});
  loop.runPending();
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0);
}

TEST_F(EventLoopWin, AFilterThatThrowsIsAnErrorAndNoFilter) {
  int errors = 0;
  bool ran = false;
  loop.setErrorHandler([&](const std::exception&) { ++errors; });
  loop.addMessageFilter([](MSG& message) -> bool {
    if (message.message == kPosted) throw base::Overflow();
    return false;
  });
  poster.post([&] { ran = true; });
  loop.runPending();
  EXPECT_EQ(errors, 1);
  EXPECT_TRUE(ran);
}

TEST_F(EventLoopWin, TheSystemsRequestToEndIsQuit) {
  PostQuitMessage(0);
  loop.run();
  EXPECT_TRUE(loop.isQuitting());
}

TEST_F(EventLoopWin, QuitEndsTheLoopOfADialogThatKnowsNothingOfThisOne) {
  loop.startTimer(20, [this] { loop.quit(); });
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_TRUE(loop.isQuitting()) << "and timers tick inside it";
}

TEST_F(EventLoopWin, AQuitThatWasNeverFetchedDoesNotEndTheNextLoop) {
  {
    os::EventLoopWin other(clock);
    other.quit();
  }
  bool ran = false;
  poster.post([&] { ran = true; });
  loop.runPending();
  EXPECT_TRUE(ran);
  EXPECT_FALSE(loop.isQuitting());
}

TEST_F(EventLoopWin, AWaitOfAFrameNeverEndsTooEarly) {
  for (int i = 0; i < 21; ++i) {
    const std::int64_t start = clock.tickMs();
    while (clock.tickMs() < start + 16) loop.waitUntil(start + 16);
    EXPECT_GE(clock.tickMs(), start + 16);
  }
}

TEST_F(EventLoopWin, WhatWasDrawnBeforeAWaitIsOnTheScreenAfterIt) {
  os::OwnedWindow window(CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 40, 40, 60, 60,
                                         nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  loop.waitUntil(clock.tickMs() + 50);
  const COLORREF colors[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};
  for (const COLORREF color : colors) {
    {
      const os::WindowDc dc(window.get());
      os::OwnedBrush brush(CreateSolidBrush(color));
      const RECT area{0, 0, 60, 60};
      FillRect(dc.get(), &area, brush.get());
    }
    const std::int64_t end = clock.tickMs() + 20;
    while (clock.tickMs() < end) loop.waitUntil(end);
    // The pixels are out of the program; the display's own process needs a moment to have them.
    base::Pixel shown = 0;
    for (int tries = 0; tries < 100 && shown != base::OpaquePixel(color); ++tries) {
      shown = support::PrimaryScreen().at(70, 70);
    }
    EXPECT_EQ(shown, base::OpaquePixel(color));
  }
}

}  // namespace

}  // namespace support
