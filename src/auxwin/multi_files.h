// The window that adds every picture of one folder to the picture list.
#pragma once

#include <string>

#include "auxwin/picture_target.h"
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/dialogs.h"
#include "forms/folder_lists.h"
#include "forms/form.h"
#include "forms/window_system.h"
#include "os/files.h"

namespace auxwin {

// The files of a folder that are taken for pictures.
inline constexpr char kImportedPatterns[] = "*.bmp;*.gif;*.dib;*.jpeg;*.jpg";

// Shown modally. The lists start on the current drive and folder.
class MultiFiles : public forms::Form {
 public:
  MultiFiles(PictureTarget target, os::Files& disk, forms::Dialogs& dialogs, forms::WindowSystem& windows);

  forms::Frame fraFileControls{*this, "fraFileControls"};
  forms::DriveList drvDrives;
  forms::FolderList dirDirectories;
  forms::FileList filFilenames;
  forms::CommandButton Command1{*this, "Command1"};
  forms::CommandButton cmdQuit{*this, "cmdQuit"};

  // The folder whose pictures were added; empty while none were.
  const std::string& addedFolder() const { return addedFolder_; }

  void Form_Load();
  void drvDrives_Change();
  void dirDirectories_Change();
  void dirDirectories_Click();
  void Command1_Click();
  void cmdQuit_Click();

 private:
  void layOut();

  PictureTarget target_;
  std::string addedFolder_;
  forms::Dialogs& dialogs_;
  forms::WindowSystem& windows_;
};

}  // namespace auxwin
