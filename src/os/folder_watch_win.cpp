#include "os/folder_watch_win.h"

#include "os/open_file_win.h"

namespace os {

FolderWatchWin::FolderWatchWin(const std::string& folder, bool subfolders)
    : interruption_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      changes_(FindFirstChangeNotificationW(
          WidePath(folder).c_str(), subfolders ? TRUE : FALSE,
          FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME | FILE_NOTIFY_CHANGE_ATTRIBUTES)) {}

FolderWatchWin::~FolderWatchWin() {
  giveUp();
  if (interruption_ != nullptr) CloseHandle(interruption_);
}

bool FolderWatchWin::waitForChange(int atMostMs) {
  const HANDLE handles[] = {interruption_, changes_};
  const DWORD count = changes_ == INVALID_HANDLE_VALUE ? 1 : 2;
  const DWORD ended = WaitForMultipleObjects(count, handles, FALSE, static_cast<DWORD>(atMostMs));
  if (ended != WAIT_OBJECT_0 + 1) return false;
  // A share that has gone tells of its end as of a change, again and again.
  if (FindNextChangeNotification(changes_) == FALSE) giveUp();
  return true;
}

void FolderWatchWin::interrupt() { SetEvent(interruption_); }

void FolderWatchWin::giveUp() {
  if (changes_ != INVALID_HANDLE_VALUE) FindCloseChangeNotification(changes_);
  changes_ = INVALID_HANDLE_VALUE;
}

}  // namespace os
