#include "support/settings_dialog_machine.h"

namespace support {

void SettingsDialogMachine::setPictures(std::initializer_list<PictureRow> rows) {
  int i = 0;
  for (const PictureRow& row : rows) {
    set("images", std::to_string(i), row.path);
    set("caption", std::to_string(i), row.caption);
    pictures.add(row.path, {400, 100 + 10 * i}, base::Rgb(10 * i, 20, 30));
    ++i;
  }
  set("total", "total", std::to_string(i));
}

dialog::SettingsDialog& SettingsDialogMachine::openDialog() {
  writeSettings();
  return openDialogOnFile();
}

dialog::SettingsDialog& SettingsDialogMachine::openDialogOnFile() {
  dialog_ = std::make_unique<dialog::SettingsDialog>(dialog::DialogServices{files,
                                                                            ansi,
                                                                            pictures,
                                                                            dialogs,
                                                                            windows,
                                                                            nullptr,
                                                                            &ahead,
                                                                            folders,
                                                                            workers.maker(),
                                                                            nullptr,
                                                                            {},
                                                                            live},
                                                     loop, shell, kProgramFolder, nullptr);
  dialog_->show();
  return *dialog_;
}

std::string Listed(const dialog::SettingsDialog& dialog) {
  if (dialog.form.List1.listCount() != dialog.form.photo_caption.listCount()) return "?";
  std::string rows;
  for (int i = 0; i < dialog.form.List1.listCount(); ++i) {
    rows += dialog.form.List1.item(i) + "=" + dialog.form.photo_caption.item(i) + ";";
  }
  return rows;
}

}  // namespace support
