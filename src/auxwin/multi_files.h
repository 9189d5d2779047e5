// The window that adds every picture of one folder to the picture list.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "auxwin/picture_target.h"
#include "auxwin/tree_search.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/dialogs.h"
#include "forms/folder_lists.h"
#include "forms/form.h"
#include "forms/texts.h"
#include "forms/timer.h"
#include "forms/window_system.h"
#include "os/event_loop.h"
#include "os/files.h"
#include "os/folder_reader.h"
#include "os/worker.h"

namespace auxwin {

// What the import needs of the machine.
struct ImportServices {
  os::Files& disk;
  forms::Dialogs& dialogs;
  forms::WindowSystem& windows;
  os::EventLoop& loop;
  std::shared_ptr<os::FolderReader> folders;  // with a worker: to look below folders; null: nobody does
  os::MakeWorker makeWorker;
};

// Shown modally. The lists start on the current drive and folder. An import that takes its time says how far
// it is and lets itself be cancelled; the picture list takes all of it at its end, or nothing.
class MultiFiles : public forms::Form {
 public:
  MultiFiles(PictureTarget target, const ImportServices& services,
             const std::string& patterns = kImportedPatterns);

  forms::Frame fraFileControls{*this, "fraFileControls"};
  forms::DriveList drvDrives;
  forms::FolderList dirDirectories;
  forms::FileList filFilenames;
  forms::CheckBox chkSubfolders{*this, "chkSubfolders"};
  forms::CommandButton Command1{*this, "Command1"};
  forms::CommandButton cmdQuit{*this, "cmdQuit"};
  forms::Label lblProgress{*this, "lblProgress"};

  // The folder whose pictures were added; empty while none were.
  const std::string& addedFolder() const { return addedFolder_; }

  void Form_Load();
  void drvDrives_Change();
  void dirDirectories_Change();
  void dirDirectories_Click();
  void Command1_Click();
  void cmdQuit_Click();

 private:
  class Import;
  struct Pictures {
    std::string folder;
    std::vector<std::string> names;  // or paths below the folder
    int foldersPassedOver = 0;
  };

  void layOut();
  bool isOver() const;
  std::optional<Pictures> listed() const;
  std::optional<Pictures> searched();
  std::optional<std::vector<std::string>> storable(const Pictures& pictures);
  void add(std::vector<std::string> paths, int leftOut);
  void tellPassedOver(int folders) const;

  PictureTarget target_;
  ImportServices services_;
  forms::Timer progress_;
  std::string addedFolder_;
  bool importing_ = false;
  bool cancelled_ = false;
};

}  // namespace auxwin
