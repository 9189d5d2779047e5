// The whole settings dialog on fakes, with the pictures and captions of a test.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dialog/settings_dialog.h"
#include "support/dialog_machine.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/fake_folder_reader.h"
#include "support/fake_workers.h"
#include "support/shell_recorder.h"

namespace support {

struct PictureRow {
  std::string path;
  std::string caption;
};

class SettingsDialogMachine : public DialogMachine {
 public:
  static constexpr char kBakPath[] = "C:\\Lumora\\zbfaone.bak";

  // Puts the pictures into the settings file; each can be loaded, in a size of its own.
  void setPictures(std::initializer_list<PictureRow> rows);

  // Opens the dialog on the settings as they were set; or on the file as it is.
  dialog::SettingsDialog& openDialog();
  dialog::SettingsDialog& openDialogOnFile();

  // Lets what was selected come to rest.
  void rest() { loop.runFor(dialog::SelectionRest::kRestMs + 1); }

  FakeClock clock;
  FakeEventLoop loop{clock};
  FakeWorkers workers{loop};
  pictures::AheadLoader ahead{{std::shared_ptr<void>(), &pictures}, loop, workers.maker()};
  std::shared_ptr<FakeFolderReader> folders = std::make_shared<FakeFolderReader>();
  ShellRecorder shell;
  dialog::LiveShow* live = nullptr;  // before the dialog is opened

  // Ends the dialog as the end of the program does.
  void closeDialog() { dialog_.reset(); }

 private:
  std::unique_ptr<dialog::SettingsDialog> dialog_;
};

// "path=caption;" for each picture of the dialog; "?" where the two lists have come out of step.
std::string Listed(const dialog::SettingsDialog& dialog);

}  // namespace support
