#include "e2e/dialog_hands.h"

#include <commctrl.h>

#include "e2e/keyboard.h"
#include "e2e/pointer.h"

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

HWND TabsOf(HWND form) { return FindWindowExW(form, nullptr, L"SysTabControl32", nullptr); }

// In pixels of the screen. The tabs tell a place in memory of their own process.
POINT MiddleOfTab(HWND tabs, int tab) {
  DWORD processId = 0;
  GetWindowThreadProcessId(tabs, &processId);
  const HANDLE process =
      OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
  void* const there = VirtualAllocEx(process, nullptr, sizeof(RECT), MEM_COMMIT, PAGE_READWRITE);
  SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(there));
  RECT place{};
  ReadProcessMemory(process, there, &place, sizeof(place), nullptr);
  VirtualFreeEx(process, there, 0, MEM_RELEASE);
  CloseHandle(process);
  POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  ClientToScreen(tabs, &middle);
  return middle;
}

// The page of the tab is laid out when the program is through with it, and answers.
void AwaitLayout(HWND form) { SendMessageW(form, WM_NULL, 0, 0); }

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

int ShownTab(HWND form) {
  const HWND tabs = TabsOf(form);
  return tabs != nullptr ? static_cast<int>(SendMessageW(tabs, TCM_GETCURSEL, 0, 0)) : -1;
}

testing::AssertionResult NextTab(HWND form) {
  const int before = ShownTab(form);
  testing::AssertionResult pressed = PressUntil(
      form, [&] { return ShownTab(form) != before; }, VK_TAB, VK_CONTROL);
  if (pressed) AwaitLayout(form);
  return pressed;
}

testing::AssertionResult ClickTab(HWND form, int tab) {
  const POINT middle = MiddleOfTab(TabsOf(form), tab);
  ClickAt(middle.x, middle.y);
  if (!WaitFor([&] { return ShownTab(form) == tab; }))
    return testing::AssertionFailure() << "not tab " << tab;
  AwaitLayout(form);
  return testing::AssertionSuccess();
}

HWND FindOnTabs(HWND form, const wchar_t* className, const wchar_t* text,
                const std::function<testing::AssertionResult(HWND)>& turn) {
  const auto count = static_cast<int>(SendMessageW(TabsOf(form), TCM_GETITEMCOUNT, 0, 0));
  for (int i = 0; i <= count; ++i) {
    if (HWND found = ChildOf(form, className, text)) return found;
    if (i == count || !turn(form)) break;
  }
  return nullptr;
}

void ClickOn(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  ClickAt((place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

testing::AssertionResult EnterField(HWND form, HWND field) {
  ClickOn(field);
  testing::AssertionResult taken = WaitForKeyboard(form);
  if (!taken) return taken;
  if (WaitFor([&] { return FocusIn(form) == field; })) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "another control of the form has the keyboard";
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
