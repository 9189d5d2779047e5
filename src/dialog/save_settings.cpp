#include "dialog/save_settings.h"

#include <optional>
#include <string>

#include "base/calendar.h"
#include "base/errors.h"
#include "base/number_text.h"
#include "dialog/kept_files.h"
#include "dialog/messages.h"
#include "os/paths.h"
#include "settings/ini_document.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

constexpr double kCountdown = 2;

// The wait's pointer, for as long as it lives.
class Hourglass {
 public:
  explicit Hourglass(Form2& form) : form_(form) { form_.setMousePointer(forms::MousePointer::Hourglass); }
  ~Hourglass() { form_.setMousePointer(forms::MousePointer::Default); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Form2& form_;
};

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

// What speaks against saving; null when nothing does. A folder that is followed gives a show its pictures
// without any in the list.
const char* FaultOf(const Form2& form) {
  if (form.List1.item(0).empty() && form.followedFolders.empty()) return kNoImages;
  if (form.record.backEffect == "2" && form.record.backgroundImage.empty()) return kNoBackgroundImage;
  if (!IsDateUsable(form.record)) return kInvalidDate;
  return nullptr;
}

// The same where there is little room; empty when nothing speaks against it any more.
std::string ShortFaultOf(const Form2& form) {
  const char* const fault = FaultOf(form);
  if (fault == kNoImages) return kNotSavedNoImages;
  if (fault == kNoBackgroundImage) return kNotSavedNoBackground;
  return fault ? kNotSavedInvalidDate : "";
}

// What a failed loading did not read has its default.
settings::SettingsRecord RecordToWrite(const Form2& form) {
  settings::SettingsRecord record = form.record;
  if (form.loadedWell()) return record;
  for (const settings::Key& key : settings::kWrittenKeys) {
    if ((record.*key.field).empty()) record.*key.field = key.fallback;
  }
  return record;
}

// The file `old` with everything that is chosen in the dialog.
std::string Written(const Form2& form, const std::string& old) {
  settings::IniDocument document(old, form.services().ansi);
  settings::WriteSettings(document, RecordToWrite(form), form.List1.items(), form.photo_caption.items());
  settings::WriteExtras(document, form.record, form.loaded());
  settings::WriteFolders(document, form.followedFolders, form.loadedFolders());
  return document.serialise();
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
  if (!old.empty() && !form.loadedWell() && !KeepOldFile(form, old)) return;
  if (files.replace(path, Written(form, old)) && form.showsHiddenAgain) form.services().hidden.showAgain();
}

const char* CheckAndWrite(Form2& form) {
  const Hourglass wait(form);
  const char* const fault = FaultOf(form);
  if (!fault) WriteFile(form);
  return fault;
}

}  // namespace

bool SaveSettings(Form2& form) {
  if (const char* const fault = CheckAndWrite(form)) {
    form.setRefusalNote([&form] { return ShortFaultOf(form); });
    form.services().dialogs.messageBox(fault, forms::kExclamation);
    return false;
  }
  form.services().windows.unload(form);
  return true;
}

std::optional<std::string> SettingsToTry(Form2& form) {
  if (const char* const fault = FaultOf(form)) {
    form.services().dialogs.messageBox(fault, forms::kExclamation);
    return std::nullopt;
  }
  const std::optional<std::string> found =
      form.services().files.read(settings::IniPath(form.programFolder()));
  return Written(form, found ? *found : form.loadedFile());
}

void ShowWhetherSettingsCanBeSaved(Form2& form) {
  const DialogServices& services = form.services();
  const bool readOnly = services.isReadOnly && services.isReadOnly(settings::IniPath(form.programFolder()));
  const char* const inReadOnlyFile = readOnly ? kFileReadOnly : "";
  form.setSavingNote(services.files.canWriteIn(form.programFolder()) ? inReadOnlyFile : kFolderReadOnly);
}

}  // namespace dialog
