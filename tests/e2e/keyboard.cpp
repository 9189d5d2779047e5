#include "e2e/keyboard.h"

#include "e2e/running_program.h"
#include "os/utf16_win.h"

namespace e2e {

namespace {

constexpr int kMostPresses = 4;

// Class and text, for a failure's message.
std::string NameOf(HWND window) {
  if (!window) return "nothing";
  wchar_t className[64] = {};
  wchar_t text[64] = {};
  GetClassNameW(window, className, 64);
  GetWindowTextW(window, text, 64);
  return os::FromWide(className) + " \"" + os::FromWide(text) + "\"";
}

bool NobodyHasKeyboard() { return GetForegroundWindow() == GetDesktopWindow(); }

bool HasKeyboard(HWND window) {
  TakeKeyboardOfNobody(window);
  const HWND focus = FocusIn(window);
  return IsWindowEnabled(window) != FALSE && GetForegroundWindow() == window && focus != nullptr &&
         (focus == window || IsChild(window, focus));
}

testing::AssertionResult NoKeyboardFor(HWND window) {
  return testing::AssertionFailure() << (IsWindowEnabled(window) ? "enabled" : "disabled or gone")
                                     << ", in front: " << NameOf(GetForegroundWindow())
                                     << ", with the keyboard: " << NameOf(FocusIn(window));
}

}  // namespace

void PressKey(WORD virtualKey) {
  INPUT input[2]{};
  input[0].type = INPUT_KEYBOARD;
  input[0].ki.wVk = virtualKey;
  input[1] = input[0];
  input[1].ki.dwFlags = KEYEVENTF_KEYUP;
  SendInput(2, input, sizeof(INPUT));
}

void PressWith(WORD held, WORD virtualKey) {
  INPUT input[4]{};
  const WORD keys[] = {held, virtualKey, virtualKey, held};
  for (int i = 0; i < 4; ++i) {
    input[i].type = INPUT_KEYBOARD;
    input[i].ki.wVk = keys[i];
    if (i >= 2) input[i].ki.dwFlags = KEYEVENTF_KEYUP;
  }
  SendInput(4, input, sizeof(INPUT));
}

void TypeText(const std::wstring& text) {
  for (const wchar_t letter : text) {
    INPUT input[2]{};
    input[0].type = INPUT_KEYBOARD;
    input[0].ki.wScan = letter;
    input[0].ki.dwFlags = KEYEVENTF_UNICODE;
    input[1] = input[0];
    input[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInput(2, input, sizeof(INPUT));
  }
}

void TakeKeyboardOfNobody(HWND window) {
  if (window && NobodyHasKeyboard()) SetForegroundWindow(window);
}

HWND FocusIn(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  const DWORD thread = GetWindowThreadProcessId(window, nullptr);
  return GetGUIThreadInfo(thread, &info) != FALSE ? info.hwndFocus : nullptr;
}

testing::AssertionResult WaitForKeyboard(HWND window) {
  if (WaitFor([&] { return HasKeyboard(window); })) return testing::AssertionSuccess();
  return NoKeyboardFor(window);
}

testing::AssertionResult PressUntil(HWND window, const std::function<bool()>& happened, WORD virtualKey,
                                    WORD held) {
  for (int press = 0; press < kMostPresses; ++press) {
    if (!WaitFor([&] { return happened() || HasKeyboard(window); })) return NoKeyboardFor(window);
    if (happened()) return testing::AssertionSuccess();
    held != 0 ? PressWith(held, virtualKey) : PressKey(virtualKey);
    WaitFor([&] { return happened() || NobodyHasKeyboard(); });
    if (happened()) return testing::AssertionSuccess();
    if (!NobodyHasKeyboard())
      return testing::AssertionFailure() << "the key was pressed and nothing came of it";
  }
  return testing::AssertionFailure() << "the key was pressed " << kMostPresses << " times";
}

}  // namespace e2e
