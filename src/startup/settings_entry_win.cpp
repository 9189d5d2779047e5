// Opens the settings dialog of the Lumora.scr beside it. The Start menu cannot do that itself: the shell
// opens a .scr by its association, which runs the show and drops a shortcut's switches.
#include <windows.h>

namespace {

constexpr DWORD kLongestPath = 32767;
constexpr wchar_t kSaver[] = L"Lumora.scr";

// This program's folder with its last backslash, and behind it the saver's name. `path` holds kLongestPath
// letters; false when that is too few.
bool FindSaver(wchar_t* path) {
  const DWORD length = GetModuleFileNameW(nullptr, path, kLongestPath);
  DWORD folder = length;
  while (folder > 0 && path[folder - 1] != L'\\') --folder;
  if (length == 0 || folder + sizeof(kSaver) / sizeof(wchar_t) > kLongestPath) return false;
  lstrcpyW(path + folder, kSaver);
  return true;
}

bool OpenSettings() {
  // Taken from the system and given back by the program's end; a standard container would weigh more than all
  // of this program.
  auto* const path = static_cast<wchar_t*>(LocalAlloc(LPTR, kLongestPath * sizeof(wchar_t)));
  auto* const commandLine = static_cast<wchar_t*>(LocalAlloc(LPTR, (kLongestPath + 8) * sizeof(wchar_t)));
  if (!path || !commandLine || !FindSaver(path)) return false;
  lstrcpyW(commandLine, L"\"");
  lstrcatW(commandLine, path);
  lstrcatW(commandLine, L"\" /C");
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(path, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
    return false;
  // The dialog comes to the front as this program would have.
  AllowSetForegroundWindow(process.dwProcessId);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  if (OpenSettings()) return 0;
  MessageBoxW(nullptr, L"Lumora.scr could not be started. Please install Lumora again.",
              L"Lumora Screen Saver", MB_OK | MB_ICONERROR);
  return 1;
}
