// The settings dialog's way into the settings file.
#pragma once

#include <optional>
#include <string>

#include "dialog/form2.h"

namespace dialog {

// Checks the dialog's state: pictures, background image, countdown date, in this order. The first fault is
// reported, and the dialog stays as it was with nothing written; the status bar's second panel says what is
// amiss until it is mended. Otherwise writes the settings file in one
// step and takes the dialog away, also where the file cannot be written. True when the dialog has gone.
bool SaveSettings(Form2& form);

// The bytes of the settings file that a save would write now. Reports the first fault as a save would, and
// gives nothing then.
std::optional<std::string> SettingsToTry(Form2& form);

// Says in the status bar's second panel when the program's folder or the settings file cannot be written.
void ShowWhetherSettingsCanBeSaved(Form2& form);

}  // namespace dialog
