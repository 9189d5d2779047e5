#include "os/event_loop_win.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "os/window_class_win.h"

namespace os {

namespace {

constexpr const wchar_t* kLoopClass = L"LumoraEventLoop";
constexpr std::int64_t kLongestSleepMs = 60 * 60 * 1000;
constexpr LONG kLongestPassMs = 100;

[[noreturn]] void ThrowLastError(const char* what) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

// An alarm to the millisecond where the system has one (Windows 10 1803 and later), so that a frame's wait
// does not take the 15.6 ms steps of the ordinary clock; else an ordinary one.
HANDLE CreateAlarm() {
  constexpr DWORD kHighResolution = 0x2;
  if (HANDLE exact = CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS))
    return exact;
  return CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

// True when a message that came after `start` says that everything that was waiting then has been run. Timers
// and paint requests come only when nothing else waits; without this a timer whose handler takes longer than
// its interval would keep a pass going for ever. Anything else may still have older messages behind it.
//
// An empty message to the thread itself is a request: whoever waits looks first at what has changed.
bool EndsPass(const MSG& message, DWORD start) {
  if (message.message == WM_NULL && !message.hwnd) return true;
  const LONG late = static_cast<LONG>(message.time - start);
  if (message.message == WM_TIMER || message.message == WM_PAINT) return late > 0;
  return late > kLongestPassMs;
}

}  // namespace

EventLoopWin::EventLoopWin(const Clock& clock) : clock_(clock), alarm_(CreateAlarm()) {
  RegisterWindowClass(kLoopClass, Procedure);
  window_.reset(CreateWindowExW(0, kLoopClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                GetModuleHandleW(nullptr), this));
  if (!window_) ThrowLastError("the event loop's window");
}

EventLoopWin::~EventLoopWin() {
  LeaveWindow(window_.get());
  // A request to end that was never fetched is this loop's own and must not end the next one.
  MSG message;
  PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

LRESULT CALLBACK EventLoopWin::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = ObjectOf<EventLoopWin>(window, message, lParam);
  if (!self || message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
  self->tick(static_cast<TimerId>(wParam));
  return 0;
}

void EventLoopWin::tick(TimerId timer) {
  const auto running = timers_.find(timer);
  if (running == timers_.end() || quitting_) return;
  // Held here as well, since the handler may stop its own timer.
  const std::shared_ptr<std::function<void()>> handler = running->second;
  dispatch(*handler);
}

void EventLoopWin::dispatch(const std::function<void()>& handler) noexcept {
  const auto report = [this](const std::exception& error) {
    if (!errorHandler_) std::terminate();
    const auto errorHandler = errorHandler_;  // it may replace itself
    errorHandler(error);
  };
  try {
    handler();
  } catch (const std::exception& error) {
    report(error);
  } catch (...) {
    report(std::runtime_error("an error of unknown kind"));
  }
}

void EventLoopWin::runPending() {
  const DWORD start = GetTickCount();
  MSG message;
  while (!quitting_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      quitting_ = true;
      return;
    }
    deliver(message);
    if (EndsPass(message, start)) return;
  }
}

void EventLoopWin::deliver(MSG& message) {
  if (filtered(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

bool EventLoopWin::filtered(MSG& message) {
  const auto filters = filters_;  // a filter's dialog may close, and remove it, while it runs
  for (const auto& [number, filter] : filters) {
    if (!filters_.contains(number)) continue;
    bool done = false;
    dispatch([&] { done = (*filter)(message); });
    if (done) return true;
  }
  return false;
}

void EventLoopWin::sleep(std::int64_t durationMs) {
  const std::int64_t duration = std::min(durationMs, kLongestSleepMs);
  const HANDLE alarm = alarm_.get();
  LARGE_INTEGER due{};
  due.QuadPart = -duration * 10'000;  // relative, in steps of 100 ns
  const bool armed = alarm && SetWaitableTimer(alarm, &due, 0, nullptr, nullptr, FALSE);
  // Messages that were seen but not fetched count too. This wait is also when drawn pixels reach the screen.
  MsgWaitForMultipleObjectsEx(armed ? 1 : 0, armed ? &alarm : nullptr,
                              armed ? INFINITE : static_cast<DWORD>(duration), QS_ALLINPUT,
                              MWMO_INPUTAVAILABLE);
}

void EventLoopWin::waitUntil(std::int64_t deadlineMs) {
  if (quitting_) return;
  const std::int64_t left = deadlineMs - clock_.tickMs();
  if (left > 0) sleep(left);
  runPending();
}

EventLoop::TimerId EventLoopWin::startTimer(int intervalMs, std::function<void()> tick) {
  const TimerId timer = nextTimer_++;
  const UINT_PTR number = static_cast<UINT_PTR>(timer);
  if (!SetTimer(window_.get(), number, static_cast<UINT>(std::max(intervalMs, 1)), nullptr)) {
    ThrowLastError("a timer");
  }
  timers_[timer] = std::make_shared<std::function<void()>>(std::move(tick));
  return timer;
}

void EventLoopWin::stopTimer(TimerId timer) {
  if (timers_.erase(timer) > 0) KillTimer(window_.get(), static_cast<UINT_PTR>(timer));
}

void EventLoopWin::run() {
  while (!quitting_) {
    MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    runPending();
  }
}

void EventLoopWin::quit() {
  quitting_ = true;
  PostQuitMessage(0);  // for the loops of message boxes and dialogs, which know nothing of this one
}

void EventLoopWin::setErrorHandler(std::function<void(const std::exception&)> handler) {
  errorHandler_ = std::move(handler);
}

int EventLoopWin::addMessageFilter(MessageFilter filter) {
  const int number = nextFilter_++;
  filters_[number] = std::make_shared<MessageFilter>(std::move(filter));
  return number;
}

void EventLoopWin::removeMessageFilter(int filter) { filters_.erase(filter); }

}  // namespace os
