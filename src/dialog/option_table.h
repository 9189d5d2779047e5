// How the dialog shows each setting and takes it back, as a table.
#pragma once

#include <span>
#include <string>

#include "settings/settings_record.h"

namespace dialog {

class Form2;

// One row a setting.
struct OptionRow {
  settings::Field field;

  // Shows a text of the setting in the dialog. Throws base::RunTimeError for text that does not convert to
  // what the control needs; a number out of the control's range is clamped by the control.
  void (*show)(Form2& form, const std::string& text);

  // From now on what the user chooses goes into the form's record.
  void (*connect)(Form2& form);
};

// In the order of loading.
std::span<const OptionRow> OptionTable();

}  // namespace dialog
