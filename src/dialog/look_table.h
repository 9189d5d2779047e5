// The two looks of the show that one click chooses.
#pragma once

#include <array>

#include "settings/settings_record.h"

namespace dialog {

// What a setting is in each look. The installer writes the same (packaging/look_today.txt).
struct LookRow {
  settings::Field field;
  const char* classic;
  const char* today;
};

inline constexpr auto kLooks = std::to_array<LookRow>({
    {&settings::SettingsRecord::fit, "", "whole"},
    {&settings::SettingsRecord::surround, "", "blur"},
    {&settings::SettingsRecord::change, "", "crossfade"},
    {&settings::SettingsRecord::panZoom, "", "8"},
    {&settings::SettingsRecord::shade, "", "1"},
});

}  // namespace dialog
