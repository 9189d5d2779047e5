#include "auxwin/multi_files.h"

#include <utility>
#include <vector>

#include "base/number_text.h"
#include "os/paths.h"

namespace auxwin {

namespace {

constexpr float kTwips = 15;  // of one pixel of the layout

void Place(forms::Control& control, float left, float top, float width, float height) {
  control.move(left * kTwips, top * kTwips, width * kTwips, height * kTwips);
}

}  // namespace

MultiFiles::MultiFiles(PictureTarget target, os::Files& disk, forms::Dialogs& dialogs,
                       forms::WindowSystem& windows)
    : Form("MultiFiles"),
      drvDrives(*this, "drvDrives", disk),
      dirDirectories(*this, "dirDirectories", disk),
      filFilenames(*this, "filFilenames", disk),
      target_(std::move(target)),
      dialogs_(dialogs),
      windows_(windows) {
  layOut();
  filFilenames.setPattern(kImportedPatterns);
  onLoad = [this] { Form_Load(); };
  drvDrives.onChange = [this] { drvDrives_Change(); };
  dirDirectories.onChange = [this] { dirDirectories_Change(); };
  dirDirectories.onClick = [this] { dirDirectories_Click(); };
  Command1.onClick = [this] { Command1_Click(); };
  cmdQuit.onClick = [this] { cmdQuit_Click(); };
}

void MultiFiles::layOut() {
  setCaption("Add Images From a Folder");
  setClientSize(500 * kTwips, 372 * kTwips);
  fraFileControls.setCaption("Folder");
  Place(fraFileControls, 12, 12, 476, 312);
  for (forms::Control* list :
       {static_cast<forms::Control*>(&drvDrives), static_cast<forms::Control*>(&dirDirectories),
        static_cast<forms::Control*>(&filFilenames)}) {
    list->setContainer(&fraFileControls);
    list->setBackColor(base::kWindowBackground);
  }
  Place(drvDrives, 16, 26, 216, 24);
  Place(dirDirectories, 16, 58, 216, 238);
  Place(filFilenames, 244, 26, 216, 270);
  drvDrives.setAccessibleName("Drive");
  dirDirectories.setAccessibleName("Folder");
  filFilenames.setAccessibleName("Images in the folder");
  Place(Command1, 250, 334, 132, 26);
  Command1.setCaption("&Add All Images");
  Command1.setToolTip("Add all images of the folder");
  Command1.isDefault = true;
  Place(cmdQuit, 390, 334, 98, 26);
  cmdQuit.setCaption("&Cancel");
  cmdQuit.setToolTip("Close without adding images");
  cmdQuit.isCancel = true;
}

void MultiFiles::Form_Load() { centerOn(windows_.screenWidthTwips(), windows_.screenHeightTwips()); }

void MultiFiles::drvDrives_Change() { dirDirectories.setPath(drvDrives.drive()); }

void MultiFiles::dirDirectories_Change() { filFilenames.setPath(dirDirectories.path()); }

// What is listed is what would be added, so the list follows the folder that is selected, opened or not.
void MultiFiles::dirDirectories_Click() { filFilenames.setPath(dirDirectories.selectedPath()); }

// Thousands of files come in one step each, so that the lists are shown anew once.
void MultiFiles::Command1_Click() {
  addedFolder_ = filFilenames.path();
  std::vector<std::string> paths;
  paths.reserve(filFilenames.files().size());
  for (const std::string& file : filFilenames.files()) {
    if (std::optional<std::string> stored = target_.storable(os::JoinPath(filFilenames.path(), file)))
      paths.push_back(std::move(*stored));
  }
  const int leftOut = filFilenames.listCount() - static_cast<int>(paths.size());
  target_.captions.addItems(std::vector<std::string>(paths.size()));
  target_.paths.addItems(std::move(paths));
  const int count = target_.paths.listCount();
  // Bare digits: the words before the total come back with the dialog's own next change.
  target_.total.setText(base::NumberText(std::int32_t{count}));
  target_.paths.setListIndex(count - 1);
  target_.advice.consider(count, dialogs_);
  target_.tellLeftOut(leftOut);
  windows_.unload(*this);
}

void MultiFiles::cmdQuit_Click() { windows_.unload(*this); }

}  // namespace auxwin
