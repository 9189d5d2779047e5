// How each setting fills its control when the dialog is loaded, as a table.
#pragma once

#include <span>
#include <string>

#include "settings/settings_record.h"

namespace dialog {

class Form2;

struct LoadRow {
  int order;  // settings of one order belong together
  const char* section;
  const char* key;
  std::string settings::SettingsRecord::*field;

  // Shows the text that was read. Throws base::RunTimeError for text that does not convert to what the
  // control needs; a number out of the control's range is clamped by the control.
  void (*apply)(Form2& form, const std::string& text);
};

// In the order of loading.
std::span<const LoadRow> LoadTable();

}  // namespace dialog
