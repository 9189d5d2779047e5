#include "support/real_dialog_win.h"

#include <windows.h>

#include <commctrl.h>

#include "os/utf16_win.h"
#include "startup/workers_win.h"

namespace support {

namespace {

constexpr int kPatienceMs = 10000;
constexpr int kStepMs = 20;
constexpr int kReportMs = 500;

}  // namespace

RealDialog::RealDialog(DialogMachine& machine) {
  dialog_ = std::make_unique<dialog::SettingsDialogWin>(
      dialog::DialogMachineWin{loop_, machine.files, machine.ansi, machine.pictures, nullptr,
                               startup::MakeWorkers(loop_)},
      DialogMachine::kProgramFolder);
  loop_.setErrorHandler([](const std::exception&) { std::abort(); });
  waitFor([this] { return GetForegroundWindow() == window() && GetFocus() != nullptr; });
  settleKeyboard();
}

// After the keyboard's focus has come, a display server may report which keys are really down, which releases
// a key that was pressed in a program. That report is waited for, as long as one may be on its way.
void RealDialog::settleKeyboard() {
  keyboard(VK_SHIFT, 0);
  const std::int64_t deadline = clock_.tickMs() + kReportMs;
  waitFor([&] { return GetKeyState(VK_SHIFT) >= 0 || clock_.tickMs() > deadline; });
  keyboard(VK_SHIFT, KEYEVENTF_KEYUP);
}

void RealDialog::keyboard(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof(input));
  loop_.waitUntil(clock_.tickMs() + kStepMs);
}

bool RealDialog::waitFor(const std::function<bool()>& condition) {
  const std::int64_t deadline = clock_.tickMs() + kPatienceMs;
  while (!condition()) {
    if (clock_.tickMs() > deadline) return false;
    loop_.waitUntil(clock_.tickMs() + kStepMs);
    if (loop_.isQuitting()) return condition();
  }
  return true;
}

POINT RealDialog::placeOf(const forms::Control& control) const {
  POINT at{0, 0};
  for (const forms::Control* on = &control; on; on = on->container()) {
    at.x += on->pixelRect().left;
    at.y += on->pixelRect().top;
  }
  return at;
}

HWND RealDialog::windowOf(const forms::Control& control) const {
  struct Search {
    POINT at;
    SIZE size;
    bool page;
    HWND found;
  };
  POINT at = placeOf(control);
  ClientToScreen(window(), &at);
  Search search{at, {control.pixelRect().width, control.pixelRect().height}, false, nullptr};
  search.page = control.kind() == forms::ControlKind::TabPage;
  EnumChildWindows(
      window(),
      [](HWND child, LPARAM data) CALLBACK -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(data);
        RECT place{};
        GetWindowRect(child, &place);
        // A line of text may be lower than its place; an open list counts as the window's height.
        const bool here = place.left == wanted.at.x && place.right - place.left == wanted.size.cx &&
                          place.top >= wanted.at.y && place.top < wanted.at.y + wanted.size.cy;
        if (!here || !IsWindowVisible(child)) return TRUE;
        wanted.found = child;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void RealDialog::press(WORD key, WORD with) {
  if (with) keyboard(with, 0);
  keyboard(key, 0);
  keyboard(key, KEYEVENTF_KEYUP);
  if (with) keyboard(with, KEYEVENTF_KEYUP);
}

void RealDialog::type(const std::string& digits) {
  for (const char digit : digits) press(static_cast<WORD>(digit));
}

void RealDialog::pointAt(const forms::Control& control, int dx, int dy) {
  POINT at = placeOf(control);
  ClientToScreen(window(), &at);
  SetCursorPos(at.x + dx, at.y + dy);
  loop_.waitUntil(clock_.tickMs() + kStepMs);
}

// Both in one step: a scroll bar or an open list keeps the thread until the button is up.
void RealDialog::click(const forms::Control& control, int dx, int dy) {
  pointAt(control, dx, dy);
  INPUT inputs[2] = {};
  inputs[0].type = inputs[1].type = INPUT_MOUSE;
  inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  SendInput(2, inputs, sizeof(INPUT));
  loop_.waitUntil(clock_.tickMs() + kStepMs);
}

void RealDialog::showTab(int tab) {
  for (int presses = 0; form().SSTab1.tab() != tab && presses < form().SSTab1.tabCount(); ++presses) {
    const int before = form().SSTab1.tab();
    press(VK_TAB, VK_CONTROL);
    waitFor([&] { return form().SSTab1.tab() != before; });
  }
}

std::string RealDialog::textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return os::FromWide(text);
}

std::string RealDialog::classOf(HWND window) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  return os::FromWide(name);
}

std::string RealDialog::statusText(int panel) const {
  const HWND bar = FindWindowExW(window(), nullptr, STATUSCLASSNAMEW, nullptr);
  wchar_t text[256] = {};
  SendMessageW(bar, SB_GETTEXTW, static_cast<WPARAM>(panel - 1), reinterpret_cast<LPARAM>(text));
  return os::FromWide(text);
}

std::map<HWND, std::string> RealDialog::toolTips() const {
  std::map<HWND, std::string> tips;
  HWND tip = nullptr;
  while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
    if (GetWindow(tip, GW_OWNER) != window()) continue;
    const LRESULT count = SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[256] = {};
      TTTOOLINFOW tool{};
      tool.cbSize = TTTOOLINFOW_V1_SIZE;
      tool.lpszText = text;
      SendMessageW(tip, TTM_ENUMTOOLSW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&tool));
      SendMessageW(tip, TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&tool));
      tips[reinterpret_cast<HWND>(tool.uId)] = os::FromWide(text);
    }
  }
  return tips;
}

std::string RealDialog::focusedName() const {
  const HWND focus = GetFocus();
  for (const forms::Control* control : form().controls()) {
    if (control->isShown() && control->kind() != forms::ControlKind::TabPage && windowOf(*control) == focus) {
      return control->name();
    }
  }
  return {};
}

}  // namespace support
