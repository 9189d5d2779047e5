// A library that leaves a mark when anybody loads it: its own name, as a line of "loaded.txt" beside it.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  wchar_t path[MAX_PATH];
  const std::wstring whole(path, GetModuleFileNameW(module, path, MAX_PATH));
  const std::size_t slash = whole.rfind(L'\\');
  std::string line;
  for (const wchar_t letter : whole.substr(slash + 1)) line += static_cast<char>(letter);
  line += '\n';
  const HANDLE file = CreateFileW((whole.substr(0, slash) + L"\\loaded.txt").c_str(), FILE_APPEND_DATA,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(file);
  return TRUE;
}
