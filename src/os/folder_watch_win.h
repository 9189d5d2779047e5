// The system's notifications of changes in a folder.
#pragma once

#include <windows.h>

#include "os/folder_reader.h"

namespace os {

class FolderWatchWin : public FolderWatch {
 public:
  FolderWatchWin(const std::string& folder, bool subfolders);
  ~FolderWatchWin() override;
  FolderWatchWin(const FolderWatchWin&) = delete;
  FolderWatchWin& operator=(const FolderWatchWin&) = delete;

  bool waitForChange(int atMostMs) override;
  void interrupt() override;

 private:
  void giveUp();

  HANDLE interruption_;
  HANDLE changes_;  // invalid where the file system tells of none
};

}  // namespace os
