// Every setting: the text that the program holds of it, and its row in the table of the settings file.
#pragma once

#include <array>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace settings {

// Every setting as the text that the settings file holds; each user converts what it needs. Field names equal
// key names.
struct SettingsRecord {
  std::string total;
  // [image]
  std::string randomPick, picSpeed, timeInterval, picRandom, picChange, mouseSensitivity, picturePercent,
      timeDisplay;
  // [background]
  std::string newBackColor, backEffect, backgroundImage, backgroundDisplay, redBackground, greenBackground,
      blueBackground;
  // [font]
  std::string newFontName, newFontSize, newFontBold, newFontItalic, newFontUnderline, newFontFontStrikethru,
      newFontForeColor, scroll, scrollSpeed;
  // [transitions]
  std::string bStandard, bLeftWipe, bRightWipe, bRightandLeftWipe, bUpAndDown, bCenter, bHorizontalBlinds,
      bVerticalBlinds, bFade;
  // [date]
  std::string countdownMonth, countdownDay, countdownYear;
  // [extras]: settings beyond the documented file; each is empty when absent
  std::string transitionTime, fit, surround, change, panZoom, otherScreens, matchOrientation, livePreview,
      log, loadAhead, shuffle, resume, subfolders, moreFormats, captions, keys, care, shade;
};

// A setting's text in the record.
using Field = std::string SettingsRecord::*;

// One row a setting.
struct Key {
  const char* section;
  const char* name;
  Field field;
  const char* fallback;  // stands in for a value that is absent or empty, and for a number that is none
};

// Written between the picture list and the captions.
inline constexpr Key kTotalKey{"total", "total", &SettingsRecord::total, "0"};

// Every other documented key, in the order in which they are written.
// clang-format off
inline constexpr auto kWrittenKeys = std::to_array<Key>({
    {"image", "randomPick", &SettingsRecord::randomPick, "0"},
    {"background", "newBackColor", &SettingsRecord::newBackColor, "0"},
    {"background", "backEffect", &SettingsRecord::backEffect, "3"},
    {"image", "picSpeed", &SettingsRecord::picSpeed, "2"},
    {"image", "timeInterval", &SettingsRecord::timeInterval, "10"},
    {"image", "picRandom", &SettingsRecord::picRandom, "cent"},
    {"image", "picChange", &SettingsRecord::picChange, "ch"},
    {"background", "backgroundImage", &SettingsRecord::backgroundImage, ""},
    {"background", "backgroundDisplay", &SettingsRecord::backgroundDisplay, "1"},
    {"background", "redBackground", &SettingsRecord::redBackground, "0"},
    {"background", "greenBackground", &SettingsRecord::greenBackground, "0"},
    {"background", "blueBackground", &SettingsRecord::blueBackground, "128"},
    {"font", "scroll", &SettingsRecord::scroll, "1"},
    {"image", "mouseSensitivity", &SettingsRecord::mouseSensitivity, "23"},
    {"image", "picturePercent", &SettingsRecord::picturePercent, "99"},
    {"font", "scrollSpeed", &SettingsRecord::scrollSpeed, "200"},
    {"transitions", "bStandard", &SettingsRecord::bStandard, "1"},
    {"transitions", "bLeftWipe", &SettingsRecord::bLeftWipe, "1"},
    {"transitions", "bRightWipe", &SettingsRecord::bRightWipe, "1"},
    {"transitions", "bRightandLeftWipe", &SettingsRecord::bRightandLeftWipe, "1"},
    {"transitions", "bUpAndDown", &SettingsRecord::bUpAndDown, "1"},
    {"transitions", "bCenter", &SettingsRecord::bCenter, "1"},
    {"transitions", "bHorizontalBlinds", &SettingsRecord::bHorizontalBlinds, "1"},
    {"transitions", "bVerticalBlinds", &SettingsRecord::bVerticalBlinds, "1"},
    {"transitions", "bFade", &SettingsRecord::bFade, "1"},
    {"image", "timeDisplay", &SettingsRecord::timeDisplay, "0"},
    {"date", "countdownMonth", &SettingsRecord::countdownMonth, "01"},
    {"date", "countdownDay", &SettingsRecord::countdownDay, "01"},
    {"date", "countdownYear", &SettingsRecord::countdownYear, "2030"},
    {"font", "newFontName", &SettingsRecord::newFontName, "Arial"},
    {"font", "newFontSize", &SettingsRecord::newFontSize, "20"},
    {"font", "newFontBold", &SettingsRecord::newFontBold, "False"},
    {"font", "newFontItalic", &SettingsRecord::newFontItalic, "False"},
    {"font", "newFontUnderline", &SettingsRecord::newFontUnderline, "False"},
    {"font", "newFontFontStrikethru", &SettingsRecord::newFontFontStrikethru, "False"},
    {"font", "newFontForeColor", &SettingsRecord::newFontForeColor, "16777215"},
});

// Settings beyond the documented file. Absent, they leave the program as it is documented without them, and a
// save touches only those that were changed in the dialog.
inline constexpr auto kExtraKeys = std::to_array<Key>({
    {"extras", "transitionTime", &SettingsRecord::transitionTime, ""},
    {"extras", "fit", &SettingsRecord::fit, ""},
    {"extras", "surround", &SettingsRecord::surround, ""},
    {"extras", "change", &SettingsRecord::change, ""},
    {"extras", "panZoom", &SettingsRecord::panZoom, ""},
    {"extras", "otherScreens", &SettingsRecord::otherScreens, ""},
    {"extras", "matchOrientation", &SettingsRecord::matchOrientation, ""},
    {"extras", "livePreview", &SettingsRecord::livePreview, ""},
    {"extras", "log", &SettingsRecord::log, ""},
    {"extras", "loadAhead", &SettingsRecord::loadAhead, ""},
    {"extras", "shuffle", &SettingsRecord::shuffle, ""},
    {"extras", "resume", &SettingsRecord::resume, ""},
    {"extras", "subfolders", &SettingsRecord::subfolders, ""},
    {"extras", "moreFormats", &SettingsRecord::moreFormats, ""},
    {"extras", "captions", &SettingsRecord::captions, ""},
    {"extras", "keys", &SettingsRecord::keys, ""},
    {"extras", "care", &SettingsRecord::care, ""},
    {"extras", "shade", &SettingsRecord::shade, ""},
});
// clang-format on

// The row of a field. One that has none does not compile where a constant is asked for.
constexpr const Key& KeyOf(Field field) {
  for (const std::span<const Key> table :
       {std::span<const Key>(kWrittenKeys), std::span<const Key>(kExtraKeys)}) {
    for (const Key& key : table) {
      if (key.field == field) return key;
    }
  }
  if (field != kTotalKey.field) throw std::logic_error("a setting without a row");
  return kTotalKey;
}

// True for a setting beyond the documented file.
constexpr bool IsExtra(Field field) {
  for (const Key& key : kExtraKeys) {
    if (key.field == field) return true;
  }
  return false;
}

// Sections that hold one numbered key per picture.
inline constexpr std::string_view kImagesSection = "images";
inline constexpr std::string_view kCaptionSection = "caption";

// Holds one numbered key per folder that is followed.
inline constexpr std::string_view kFoldersSection = "folders";

}  // namespace settings
