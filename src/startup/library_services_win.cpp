#include "startup/library_services_win.h"

#include <windows.h>

#include <memory>
#include <utility>
#include <vector>

#include "library/hidden_pictures.h"
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

void MakeLocalFolder() { CreateDirectoryW(os::ToWide(LocalFolder()).c_str(), nullptr); }

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
          .makeUserFolder = MakeLocalFolder};
}

dialog::HiddenPictures MakeHiddenPictures(os::Files& files, const std::string& programFolder) {
  const auto hidden = std::make_shared<library::HiddenPictures>(
      files, std::vector<std::string>{programFolder, LocalFolder()}, MakeLocalFolder);
  return {.count = [hidden] { return static_cast<int>(hidden->count()); },
          .showAgain = [hidden] { hidden->bringBack(); }};
}

}  // namespace startup
