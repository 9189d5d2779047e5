#include "os/mailbox_win.h"

#include <system_error>
#include <utility>

#include "os/window_class_win.h"

namespace os {

namespace {

constexpr const wchar_t* kMailboxClass = L"LumoraMailbox";
constexpr UINT kPosted = WM_APP;  // the next event is to be run

}  // namespace

MailboxWin::MailboxWin(EventLoop& loop) : loop_(loop) {
  RegisterWindowClass(kMailboxClass, Procedure);
  window_.reset(CreateWindowExW(0, kMailboxClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                GetModuleHandleW(nullptr), this));
  if (!window_) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), "the mailbox's window");
  }
}

MailboxWin::~MailboxWin() { LeaveWindow(window_.get()); }

LRESULT CALLBACK MailboxWin::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = ObjectOf<MailboxWin>(window, message, lParam);
  if (!self || message != kPosted) return DefWindowProcW(window, message, wParam, lParam);
  self->runNext();
  return 0;
}

void MailboxWin::post(std::function<void()> event) {
  {
    const std::lock_guard lock(mutex_);
    events_.push_back(std::move(event));
  }
  PostMessageW(window_.get(), kPosted, 0, 0);
}

void MailboxWin::runNext() {
  std::function<void()> event;
  {
    const std::lock_guard lock(mutex_);
    if (events_.empty()) return;
    event = std::move(events_.front());
    events_.pop_front();
  }
  loop_.dispatch(event);
}

}  // namespace os
