#include "dialog/save_settings.h"

#include <optional>
#include <string>

#include "base/calendar.h"
#include "base/errors.h"
#include "base/number_text.h"
#include "dialog/messages.h"
#include "os/paths.h"
#include "settings/ini_document.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

constexpr double kCountdown = 2;
constexpr int kFolderPanel = 2;

bool IsDateUsable(const settings::SettingsRecord& record) {
  try {
    if (base::StrictDouble(record.timeDisplay) == kCountdown) {
      base::ParseMonthFirstDate(record.countdownMonth + "/" + record.countdownDay + "/" +
                                record.countdownYear);
    }
    return true;
  } catch (const base::RunTimeError&) {
    return false;
  }
}

// What speaks against saving; null when nothing does.
const char* FaultOf(const Form2& form) {
  if (form.List1.item(0).empty()) {
    return kNoImages;
  }
  if (form.record.backEffect == "2" && form.record.backgroundImage.empty()) {
    return kNoBackgroundImage;
  }
  if (!IsDateUsable(form.record)) return kInvalidDate;
  return nullptr;
}

// A write that fails leaves the old file as it was.
void WriteFile(const Form2& form) {
  os::Files& files = form.services().files;
  const std::string path = settings::IniPath(form.programFolder());
  const std::optional<std::string> found = files.read(path);
  // A file that is there and cannot be read keeps what it holds.
  if (!found && files.exists(path)) return;
  // One that has gone since it was loaded, perhaps for a moment only, comes back with its comments and all
  // that this dialog knows nothing of.
  const std::string& old = found ? *found : form.loadedFile();
  // What a failed loading did not read is not in the record and would be lost with the old file.
  if (!old.empty() && !form.loadedWell() &&
      !files.replace(os::JoinPath(form.programFolder(), "zbfaone.bak"), old)) {
    return;
  }
  settings::IniDocument document(old, form.services().ansi);
  settings::WriteSettings(document, form.record, form.List1.items(), form.photo_caption.items());
  files.replace(path, document.serialise());
}

}  // namespace

bool SaveSettings(Form2& form) {
  form.setMousePointer(forms::MousePointer::Hourglass);
  if (const char* fault = FaultOf(form)) {
    form.setMousePointer(forms::MousePointer::Default);
    form.services().dialogs.messageBox(fault, forms::kExclamation);
    return false;
  }
  WriteFile(form);
  form.setMousePointer(forms::MousePointer::Default);
  form.services().windows.unload(form);
  return true;
}

void ShowWhetherSettingsCanBeSaved(Form2& form) {
  const bool writable = form.services().files.canWriteIn(form.programFolder());
  form.SS_StatusBar.setPanelText(kFolderPanel, writable ? "" : kFolderReadOnly);
}

}  // namespace dialog
