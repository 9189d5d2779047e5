#include "forms/window_system_win.h"

#include <commctrl.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "base/twips.h"
#include "os/screen_win.h"

namespace forms {

namespace {

void InitCommonControlsOnce() {
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
}

constexpr int kLookMs = 20;

// For a scope windows take no input, as soon as another one of the thread is active. A window that is
// disabled while it is the active one would leave the keyboard to nobody.
class WithoutInput {
 public:
  WithoutInput(os::EventLoop& loop, std::vector<HWND> windows, HWND active)
      : loop_(loop), windows_(std::move(windows)), active_(active), focus_(GetFocus()) {
    timer_ = loop_.startTimer(kLookMs, [this] { disable(); });
  }
  ~WithoutInput() {
    loop_.stopTimer(timer_);
    for (const HWND window : disabled_) EnableWindow(window, TRUE);
    if (active_) SetForegroundWindow(active_);
    if (focus_) SetFocus(focus_);
  }
  WithoutInput(const WithoutInput&) = delete;
  WithoutInput& operator=(const WithoutInput&) = delete;

 private:
  void disable() {
    const HWND active = GetActiveWindow();
    if (!active || std::ranges::find(windows_, active) != windows_.end()) return;
    loop_.stopTimer(timer_);
    for (const HWND window : windows_) {
      if (!IsWindowEnabled(window)) continue;
      EnableWindow(window, FALSE);
      disabled_.push_back(window);
    }
  }

  os::EventLoop& loop_;
  std::vector<HWND> windows_;
  std::vector<HWND> disabled_;
  HWND active_;
  HWND focus_;
  os::EventLoop::TimerId timer_ = 0;
};

float ScreenTwips(int metric) {
  return static_cast<float>(GetSystemMetrics(metric) * base::TwipsPerPixelForDpi(os::ScreenDpi()));
}

}  // namespace

WindowSystemWin::WindowSystemWin(os::EventLoop& loop) : loop_(loop) { InitCommonControlsOnce(); }

WindowSystemWin::~WindowSystemWin() {
  for (const auto& window : loaded_) window->form().setHost(nullptr);
}

void WindowSystemWin::raise(const std::function<void()>& event) {
  ++running_;
  loop_.dispatch(event);
  --running_;
}

FormWindow* WindowSystemWin::find(const Form& form) const {
  for (const auto& window : loaded_) {
    if (&window->form() == &form) return window.get();
  }
  return nullptr;
}

HWND WindowSystemWin::windowOf(const Form& form) const {
  const FormWindow* window = find(form);
  return window ? window->handle() : nullptr;
}

HWND WindowSystemWin::activeWindow() const {
  const HWND active = GetActiveWindow();
  HWND latest = nullptr;
  for (const auto& window : loaded_) {
    if (!IsWindowVisible(window->handle())) continue;
    if (window->handle() == active) return active;
    latest = window->handle();
  }
  return latest;
}

void WindowSystemWin::show(Form& form) {
  if (FormWindow* shown = find(form)) {
    shown->activate();
    return;
  }
  const HWND owner = activeWindow();
  loaded_.push_back(std::make_unique<FormWindow>(form, *this));
  FormWindow* window = loaded_.back().get();
  form.setHost(window);
  if (!form.onCloseRequest) form.onCloseRequest = [this, &form] { unload(form); };
  window->make(owner);
  if (form.onLoad) form.onLoad();
  if (find(form) == window) window->present();
}

void WindowSystemWin::showModal(Form& form) {
  show(form);
  if (!find(form)) return;
  Modal modal{&form, {}};
  for (const auto& window : loaded_) {
    if (&window->form() == &form || !IsWindowEnabled(window->handle())) continue;
    EnableWindow(window->handle(), FALSE);
    modal.disabled.push_back(window->handle());
  }
  modals_.push_back(std::move(modal));
  while (find(form) && !loop_.isQuitting()) loop_.waitUntil(std::numeric_limits<std::int64_t>::max());
  unload(form);
}

// The others take input again before the window goes, so that one of them is activated in its place.
void WindowSystemWin::endModal(const Form& form) {
  const auto at =
      std::find_if(modals_.begin(), modals_.end(), [&](const Modal& modal) { return modal.form == &form; });
  if (at == modals_.end()) return;
  for (const HWND window : at->disabled) EnableWindow(window, TRUE);
  modals_.erase(at);
  // Keys that were typed ahead for the others wait until whoever showed the form has taken over what was
  // chosen: a posted message comes before them, and this one ends the pass over what is pending.
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void WindowSystemWin::runAlone(const std::function<void()>& other) {
  std::vector<HWND> windows;
  for (const auto& window : loaded_) windows.push_back(window->handle());
  const WithoutInput scope(loop_, std::move(windows), activeWindow());
  other();
}

// The system takes the windows above a window away with it; their forms must hear of it.
void WindowSystemWin::unloadOwnedBy(HWND owner) {
  for (std::size_t i = loaded_.size(); i > 0; --i) {
    if (i <= loaded_.size() && GetWindow(loaded_[i - 1]->handle(), GW_OWNER) == owner) {
      unload(loaded_[i - 1]->form());
    }
  }
}

void WindowSystemWin::unload(Form& form) {
  const auto isForm = [&form](const auto& window) { return &window->form() == &form; };
  auto at = std::find_if(loaded_.begin(), loaded_.end(), isForm);
  if (at == loaded_.end()) return;
  unloadOwnedBy((*at)->handle());
  at = std::find_if(loaded_.begin(), loaded_.end(), isForm);
  if (at == loaded_.end()) return;
  std::unique_ptr<FormWindow> window = std::move(*at);
  loaded_.erase(at);
  form.setHost(nullptr);
  endModal(form);
  window->close();
  closed_.push_back(std::move(window));
  if (form.onUnload) form.onUnload();
}

bool WindowSystemWin::filterMessage(MSG& message) {
  if (running_ == 0) closed_.clear();
  std::vector<FormWindow*> windows;
  for (const auto& window : loaded_) windows.push_back(window.get());
  for (FormWindow* window : windows) {
    const bool loaded = std::any_of(loaded_.begin(), loaded_.end(),
                                    [window](const auto& each) { return each.get() == window; });
    if (loaded && window->filter(message)) return true;
  }
  return false;
}

float WindowSystemWin::screenWidthTwips() const { return ScreenTwips(SM_CXSCREEN); }

float WindowSystemWin::screenHeightTwips() const { return ScreenTwips(SM_CYSCREEN); }

}  // namespace forms
