#include "startup/library_services_win.h"

#include <windows.h>

#include <utility>

#include "os/clock_win.h"
#include "os/files_win.h"
#include "os/folder_reader_win.h"
#include "os/utf16_win.h"

namespace startup {

namespace {

std::string LocalFolder() {
  constexpr const wchar_t* kName = L"LOCALAPPDATA";
  std::wstring folder(GetEnvironmentVariableW(kName, nullptr, 0), L'\0');
  folder.resize(GetEnvironmentVariableW(kName, folder.data(), static_cast<DWORD>(folder.size())));
  return folder.empty() ? std::string() : os::FromWide(folder) + "\\Lumora";
}

// No frame of the show waits for a listing.
void GiveWay() { SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL); }

}  // namespace

saver::LibraryServices MakeLibraryServices() {
  return {.follow =
              [](library::FollowRequest request) {
                return std::make_unique<library::FollowedFolders>(
                    library::FollowedFolders::Services{std::make_shared<os::FilesWin>(),
                                                       std::make_shared<os::FolderReaderWin>(),
                                                       std::make_shared<os::ClockWin>(), GiveWay},
                    std::move(request));
              },
          .userFolder = LocalFolder(),
          .makeUserFolder = [] { CreateDirectoryW(os::ToWide(LocalFolder()).c_str(), nullptr); }};
}

}  // namespace startup
