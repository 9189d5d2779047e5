// Stands in for the older family's password control panel and its network provider: asks nobody, writes down
// each call.
//
// The file named by the environment variable LUMORA_PASSWORD_ANSWER holds the answer ("accept" or "refuse");
// each call adds a line to the file of that name with ".calls" behind it.
#include <windows.h>

#include <string>

namespace {

std::wstring AnswerFile() {
  wchar_t path[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(L"LUMORA_PASSWORD_ANSWER", path, MAX_PATH);
  return std::wstring(path, length);
}

bool Accepts(const std::wstring& file) {
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  char answer[16] = {};
  DWORD got = 0;
  ReadFile(handle, answer, 15, &got, nullptr);
  CloseHandle(handle);
  return std::string(answer, got) == "accept";
}

void NoteCall(const std::wstring& file, const std::string& line) {
  const HANDLE handle = CreateFileW((file + L".calls").c_str(), FILE_APPEND_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
  CloseHandle(handle);
}

}  // namespace

extern "C" __declspec(dllexport) BOOL WINAPI VerifyScreenSavePwd(HWND owner) {
  const std::wstring file = AnswerFile();
  BOOL running = FALSE;
  SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0);
  NoteCall(file, std::string("verify window=") + (IsWindow(owner) ? "valid" : "none") +
                     " running=" + (running ? "1" : "0") + "\n");
  return Accepts(file) ? TRUE : FALSE;
}

extern "C" __declspec(dllexport) DWORD WINAPI
    PwdChangePasswordA(LPCSTR provider, HWND owner, UINT first, UINT second) {
  NoteCall(AnswerFile(), std::string("change ") + provider +
                             " window=" + std::to_string(reinterpret_cast<UINT_PTR>(owner)) + " " +
                             std::to_string(first) + " " + std::to_string(second) + "\n");
  return 0;
}
