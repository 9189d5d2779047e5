#include <windows.h>

#include <tlhelp32.h>

#include <vector>

#include "e2e/running_program.h"
#include "package/files.h"
#include "package/installation.h"
#include "package/packages.h"
#include "package/user_registry.h"

namespace package {

Packages packages;

namespace {

bool RunsFrom(DWORD processId, const wchar_t* folder) {
  const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
  if (!process) return false;
  wchar_t path[1024] = {};
  DWORD length = 1024;
  const bool known = QueryFullProcessImageNameW(process, 0, path, &length) != FALSE;
  CloseHandle(process);
  return known && std::wstring(path).find(folder) != std::wstring::npos;
}

// An uninstaller works on in a copy of itself in the temporary folder, since it removes itself too.
bool UninstallerRuns() {
  const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  bool runs = false;
  for (BOOL more = Process32FirstW(list, &entry); more && !runs; more = Process32NextW(list, &entry))
    runs = RunsFrom(entry.th32ProcessID, L"\\~nsu");
  CloseHandle(list);
  return runs;
}

}  // namespace

void Installation::SetUp() {
  folder_ = proposedFolder();
  ASSERT_FALSE(HasKey(kAppKey)) << "a Lumora is installed already";
  ASSERT_FALSE(Exists(folder_));
  saver_ = ReadText(kDesktopKey, L"SCRNSAVE.EXE");
  active_ = ReadText(kDesktopKey, L"ScreenSaveActive");
  timeOut_ = ReadText(kDesktopKey, L"ScreenSaveTimeOut");
}

void Installation::TearDown() {
  if (HasKey(kAppKey)) {
    EXPECT_TRUE(uninstall(L"/SETTINGS=remove"));
  }
  // What a failed test may have left would fail the next ones too.
  RemoveKey(kAppKey);
  for (const std::wstring& folder : {folder_, proposedFolder(), otherFolder()})
    if (!folder.empty()) RemoveTree(folder);
  WriteText(kDesktopKey, L"SCRNSAVE.EXE", saver_);
  WriteText(kDesktopKey, L"ScreenSaveActive", active_);
  WriteText(kDesktopKey, L"ScreenSaveTimeOut", timeOut_);
}

unsigned Installation::run(const std::wstring& setup, const std::wstring& switches) {
  e2e::RunningProgram process(setup, switches);
  return process.hasStarted() && process.waitForEnd(60000) ? process.exitCode() : ~0U;
}

testing::AssertionResult Installation::install(const std::wstring& setup, const std::wstring& switches) {
  const unsigned code = run(setup, L"/S" + (switches.empty() ? L"" : L" " + switches));
  if (code != 0) return testing::AssertionFailure() << "the installer ended with " << code;
  folder_ = ReadText(kAppKey, L"InstallLocation").value_or(L"");
  if (!Exists(program())) return testing::AssertionFailure() << "no program was installed";
  return testing::AssertionSuccess();
}

testing::AssertionResult Installation::uninstall(const std::wstring& switches) {
  const std::wstring uninstaller = folder_ + L"\\uninstall.exe";
  run(uninstaller, L"/S" + (switches.empty() ? L"" : L" " + switches));
  if (!e2e::WaitFor([&] { return !HasKey(kAppKey) && !Exists(uninstaller) && !UninstallerRuns(); }, 60000))
    return testing::AssertionFailure() << "the uninstaller did not come to its end";
  return testing::AssertionSuccess();
}

std::wstring Installation::versionOf(const std::wstring& file) {
  DWORD unused = 0;
  std::vector<char> data(GetFileVersionInfoSizeW(file.c_str(), &unused));
  if (data.empty() || !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()))
    return L"";
  void* text = nullptr;
  UINT length = 0;
  if (!VerQueryValueW(data.data(), L"\\StringFileInfo\\040904B0\\ProductVersion", &text, &length)) return L"";
  return static_cast<const wchar_t*>(text);
}

std::wstring Installation::proposedFolder() {
  return ProfileFolder() + L"\\AppData\\Local\\Programs\\Lumora";
}

std::wstring Installation::otherFolder() { return ProfileFolder() + L"\\Other Lumora"; }

std::optional<std::wstring> Installation::screenSaver() { return ReadText(kDesktopKey, L"SCRNSAVE.EXE"); }

}  // namespace package
