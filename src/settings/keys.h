// The table of every key of the settings file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "settings/settings_record.h"

namespace settings {

struct Key {
  const char* section;
  const char* name;
  std::string SettingsRecord::*field;
  const char* fallback;  // stands in for text that cannot be used
};

// [total] total, which is written between the picture list and the captions.
const Key& TotalKey();

// Every other documented key, in the order in which they are written.
std::span<const Key> WrittenKeys();

// The keys of [extras]. They are read and never written: they stay in the file as the user put them there.
std::span<const Key> ExtraKeys();

// The key of one of the three tables by its name, without regard to case; nullptr when there is none.
const Key* FindKey(std::string_view name);

// Sections that hold one numbered key per picture.
inline constexpr std::string_view kImagesSection = "images";
inline constexpr std::string_view kCaptionSection = "caption";

}  // namespace settings
