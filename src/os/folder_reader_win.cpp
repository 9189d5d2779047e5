#include "os/folder_reader_win.h"

#include "os/folder_listing_win.h"
#include "os/folder_watch_win.h"
#include "os/open_file_win.h"
#include "os/paths.h"
#include "os/picture_endings_win.h"
#include "os/utf16_win.h"

namespace os {

std::optional<std::vector<FolderEntry>> FolderReaderWin::read(const std::string& folder) {
  return ListFolder(folder);
}

bool FolderReaderWin::hasFile(const std::string& path) { return IsFile(path); }

std::optional<std::string> FolderReaderWin::finalPath(const std::string& folder) {
  const FileHandle handle(CreateFileW(WidePath(folder).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!handle.isOpen()) return std::nullopt;
  std::wstring path(GetFinalPathNameByHandleW(handle.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  path.resize(GetFinalPathNameByHandleW(handle.get(), path.data(), static_cast<DWORD>(path.size()),
                                        FILE_NAME_NORMALIZED));
  if (path.empty()) return std::nullopt;
  return FromWide(PlainPath(path));
}

void FolderReaderWin::sortNames(std::vector<std::string>& names) { SortAsShown(names); }

std::vector<std::string> FolderReaderWin::pictureEndings() { return DecodersPictureEndings(); }

std::unique_ptr<FolderWatch> FolderReaderWin::watch(const std::string& folder, bool subfolders) {
  return std::make_unique<FolderWatchWin>(folder, subfolders);
}

}  // namespace os
