#include "dialog/dialog_win.h"

#include <memory>
#include <optional>
#include <utility>

#include "forms/surface_win.h"
#include "os/files_win.h"
#include "os/folder_reader_win.h"
#include "os/program_resources_win.h"

namespace dialog {

namespace {

constexpr int kIconSide = 48;  // pixels at 96 dots per inch

pictures::SharedPicture ProductIcon() {
  const int dpi = forms::WindowDpi(nullptr);
  std::optional<base::Bitmap> icon =
      os::ProgramIcon(MulDiv(kIconSide, dpi, USER_DEFAULT_SCREEN_DPI), GetSysColor(COLOR_BTNFACE));
  return icon ? pictures::MakePicture(std::make_shared<base::Bitmap>(std::move(*icon))) : nullptr;
}

}  // namespace

SettingsDialogWin::SettingsDialogWin(const DialogMachineWin& machine, const std::string& programFolder)
    : loop_(machine.loop),
      windows_(loop_),
      dialogs_([this] { return windows_.activeWindow(); }),
      dialog_({machine.files, machine.ansi, machine.pictures, dialogs_, windows_, os::IsReadOnlyFile,
               machine.ahead, machine.makeWorker ? std::make_shared<os::FolderReaderWin>() : nullptr,
               machine.makeWorker, machine.captionExample, machine.hidden, machine.live},
              loop_, *shell_, programFolder, ProductIcon()),
      filter_(loop_.addMessageFilter([this](MSG& message) { return windows_.filterMessage(message); })) {
  dialog_.show();
}

SettingsDialogWin::~SettingsDialogWin() { loop_.removeMessageFilter(filter_); }

}  // namespace dialog
