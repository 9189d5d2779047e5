// A machine on which the settings dialog runs: a settings file made key by key, and fakes for the rest.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "dialog/form2.h"
#include "dialog/messages.h"
#include "support/fake_dialogs.h"
#include "support/fake_files.h"
#include "support/fake_pictures.h"
#include "support/fake_window_system.h"
#include "support/windows_1252.h"

namespace support {

inline const FakeDialogs::Message kSettingsNotLoaded{dialog::kCouldNotLoad, 48};

class DialogMachine {
 public:
  static constexpr char kProgramFolder[] = "C:\\Lumora";
  static constexpr char kIniPath[] = "C:\\Lumora\\zbfaone.ini";

  // Starts with good values for every key and no pictures.
  DialogMachine();

  // One key of the settings file. Set before the dialog is opened.
  void set(const std::string& section, const std::string& key, const std::string& value) {
    sections_[section][key] = value;
  }
  void drop(const std::string& section, const std::string& key) { sections_[section].erase(key); }
  void dropSection(const std::string& section) { sections_.erase(section); }

  // Writes the file.
  void writeSettings();

  // Writes the file and shows a new dialog.
  dialog::Form2& open();

  // A dialog as it is before anything is read.
  std::unique_ptr<dialog::Form2> untouched() {
    return std::make_unique<dialog::Form2>(dialog::DialogServices{files, ansi, pictures, dialogs, windows},
                                           "C:");
  }

  FakeFiles files;
  Windows1252 ansi;
  FakePictures pictures;
  FakeDialogs dialogs;
  FakeWindowSystem windows;

 private:
  std::map<std::string, std::map<std::string, std::string>> sections_;
  std::unique_ptr<dialog::Form2> form_;
};

// A control of a form by its name; null when there is none.
forms::Control* ControlNamed(const forms::Form& form, std::string_view name);

// A key of the settings table by its name.
const settings::Key& KeyNamed(std::string_view name);

}  // namespace support
