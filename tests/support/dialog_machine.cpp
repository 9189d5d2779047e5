#include "support/dialog_machine.h"

#include <stdexcept>

namespace support {

DialogMachine::DialogMachine() {
  sections_ = {
      {"total", {{"total", "0"}}},
      {"image",
       {{"randomPick", "1"},
        {"picSpeed", "4"},
        {"timeInterval", "30"},
        {"picRandom", "rand"},
        {"picChange", "ch"},
        {"mouseSensitivity", "12"},
        {"picturePercent", "45"},
        {"timeDisplay", "2"}}},
      {"background",
       {{"newBackColor", "255"},
        {"backEffect", "0"},
        {"backgroundDisplay", "2"},
        {"redBackground", "10"},
        {"greenBackground", "20"},
        {"blueBackground", "30"}}},
      {"font",
       {{"newFontName", "Verdana"},
        {"newFontSize", "12.5"},
        {"newFontBold", "True"},
        {"newFontItalic", "False"},
        {"newFontUnderline", "True"},
        {"newFontFontStrikethru", "False"},
        {"newFontForeColor", "65280"},
        {"scroll", "0"},
        {"scrollSpeed", "150"}}},
      {"transitions",
       {{"bStandard", "0"},
        {"bLeftWipe", "1"},
        {"bRightWipe", "0"},
        {"bRightandLeftWipe", "1"},
        {"bUpAndDown", "0"},
        {"bCenter", "1"},
        {"bHorizontalBlinds", "0"},
        {"bVerticalBlinds", "1"},
        {"bFade", "0"}}},
      {"date", {{"countdownMonth", "02"}, {"countdownDay", "29"}, {"countdownYear", "2004"}}},
  };
}

void DialogMachine::writeSettings() {
  std::string text;
  for (const auto& [section, keys] : sections_) {
    text += "[" + section + "]\r\n";
    for (const auto& [key, value] : keys) text.append(key).append("=").append(value).append("\r\n");
  }
  files.content[kIniPath] = text;
}

dialog::Form2& DialogMachine::open() {
  writeSettings();
  form_ = std::make_unique<dialog::Form2>(dialog::DialogServices{files, ansi, pictures, dialogs, windows},
                                          kProgramFolder);
  windows.show(*form_);
  return *form_;
}

forms::Control* ControlNamed(const forms::Form& form, std::string_view name) {
  for (forms::Control* control : form.controls()) {
    if (control->name() == name) return control;
  }
  return nullptr;
}

const settings::Key& KeyNamed(std::string_view name) {
  for (const settings::Key& key : settings::kWrittenKeys) {
    if (key.name == name) return key;
  }
  for (const settings::Key& key : settings::kExtraKeys) {
    if (key.name == name) return key;
  }
  if (name != settings::kTotalKey.name) throw std::logic_error("no key " + std::string(name));
  return settings::kTotalKey;
}

}  // namespace support
