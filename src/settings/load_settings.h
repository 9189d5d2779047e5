// The show's one reader of the settings file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "settings/ini_document.h"
#include "settings/settings_record.h"

namespace settings {

// Everything that the show knows of the settings file.
struct SaverSettings {
  SettingsRecord record;

  // Indices 0 to `total`; the last entry stays empty.
  std::vector<std::string> imageFiles;
  std::vector<std::string> imageCaptions;

  std::int16_t lastImageIndex = -1;  // number of paths read minus one
  float pictureScale = 0;            // picturePercent divided by 100
  std::string countdownTarget;       // "month/day/year 12:00:00 AM", only with a countdown

  std::vector<std::string> folders;  // whose pictures come behind those of the list, in order

  // Names of the keys without a number where there must be one, for which the default was taken, in the order
  // of reading.
  std::vector<std::string> mended;
};

// What to do with text that a strict conversion refuses, and with a value that is absent or empty.
enum class Conversion {
  Mend,    // go on with the key's default, whose text replaces the field, and report the key
  Strict,  // throw at the first (base::TypeMismatch, or base::Overflow for a number that its type cannot
           // hold), with the fields read so far set and the rest untouched; absent values are empty text
};

// The folders of [folders], whose keys are numbered from 0 as those of [images] are; the first that is absent
// or empty ends the list.
std::vector<std::string> FollowedFolders(const IniDocument& document);

// Reads an opened settings file into `into`. Throws base::Overflow for more than 32767 pictures in either
// mode; [extras] is in the record then.
void LoadSettings(SaverSettings& into, const IniDocument& document, Conversion conversion = Conversion::Mend);

}  // namespace settings
