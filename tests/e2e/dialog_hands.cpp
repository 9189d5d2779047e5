#include "e2e/dialog_hands.h"

namespace e2e {

namespace {

constexpr wchar_t kShellFolders[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
constexpr wchar_t kPictures[] = L"My Pictures";

struct Wanted {
  const wchar_t* className;
  const wchar_t* text;
  HWND found = nullptr;
};

BOOL CALLBACK LookAt(HWND window, LPARAM parameter) {
  auto* wanted = reinterpret_cast<Wanted*>(parameter);
  wchar_t className[64] = {};
  wchar_t text[256] = {};
  GetClassNameW(window, className, 64);
  SendMessageW(window, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
  if (!IsWindowVisible(window) || std::wstring(className) != wanted->className ||
      std::wstring(text) != wanted->text) {
    return TRUE;
  }
  wanted->found = window;
  return FALSE;
}

// The dialog's window when it is there; of one process unless `processId` is 0.
HWND FindDialog(DWORD processId) {
  const HWND window = FindWindowW(nullptr, L" Lumora Screen Saver");
  DWORD owner = 0;
  if (window) GetWindowThreadProcessId(window, &owner);
  const bool wanted = window && IsWindowVisible(window) && (processId == 0 || owner == processId);
  return wanted ? window : nullptr;
}

HWND WaitForDialog(DWORD processId) {
  HWND window = nullptr;
  WaitFor([&] { return (window = FindDialog(processId)) != nullptr; });
  return window;
}

}  // namespace

HWND ChildOf(HWND parent, const wchar_t* className, const wchar_t* text) {
  Wanted wanted{className, text};
  EnumChildWindows(parent, LookAt, reinterpret_cast<LPARAM>(&wanted));
  return wanted.found;
}

HWND DialogOf(const RunningProgram& program) { return WaitForDialog(program.processId()); }

HWND AnyDialog() { return WaitForDialog(0); }

HWND WaitForChild(HWND parent, const wchar_t* className, const wchar_t* text) {
  HWND child = nullptr;
  WaitFor([&] { return (child = ChildOf(parent, className, text)) != nullptr; });
  return child;
}

void NextTab() {
  INPUT input[4]{};
  const WORD keys[] = {VK_CONTROL, VK_TAB, VK_TAB, VK_CONTROL};
  for (int i = 0; i < 4; ++i) {
    input[i].type = INPUT_KEYBOARD;
    input[i].ki.wVk = keys[i];
    if (i >= 2) input[i].ki.dwFlags = KEYEVENTF_KEYUP;
  }
  SendInput(4, input, sizeof(INPUT));
}

void ClickOn(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  MoveMouseTo((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  ClickMouse();
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

PicturesFolder::PicturesFolder(const std::wstring& path) {
  DWORD size = sizeof(before_);
  known_ = RegGetValueW(HKEY_CURRENT_USER, kShellFolders, kPictures, RRF_RT_ANY | RRF_NOEXPAND, &type_,
                        before_, &size) == ERROR_SUCCESS;
  size_ = size;
  RegSetKeyValueW(HKEY_CURRENT_USER, kShellFolders, kPictures, REG_EXPAND_SZ, path.c_str(),
                  static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
}

PicturesFolder::~PicturesFolder() {
  if (known_) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kShellFolders, kPictures, type_, before_, size_);
  } else {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kShellFolders, kPictures);
  }
}

}  // namespace e2e
