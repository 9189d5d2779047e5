#include "settings/keys.h"

#include <array>

#include "base/text.h"

namespace settings {

namespace {

using R = SettingsRecord;

constexpr Key kTotal{"total", "total", &R::total, "0"};

constexpr auto kWritten = std::to_array<Key>({
    {"image", "randomPick", &R::randomPick, "0"},
    {"background", "newBackColor", &R::newBackColor, "0"},
    {"background", "backEffect", &R::backEffect, "3"},
    {"image", "picSpeed", &R::picSpeed, "2"},
    {"image", "timeInterval", &R::timeInterval, "10"},
    {"image", "picRandom", &R::picRandom, "cent"},
    {"image", "picChange", &R::picChange, "ch"},
    {"background", "backgroundImage", &R::backgroundImage, ""},
    {"background", "backgroundDisplay", &R::backgroundDisplay, "1"},
    {"background", "redBackground", &R::redBackground, "0"},
    {"background", "greenBackground", &R::greenBackground, "0"},
    {"background", "blueBackground", &R::blueBackground, "128"},
    {"font", "scroll", &R::scroll, "1"},
    {"image", "mouseSensitivity", &R::mouseSensitivity, "23"},
    {"image", "picturePercent", &R::picturePercent, "99"},
    {"font", "scrollSpeed", &R::scrollSpeed, "200"},
    {"transitions", "bStandard", &R::bStandard, "1"},
    {"transitions", "bLeftWipe", &R::bLeftWipe, "1"},
    {"transitions", "bRightWipe", &R::bRightWipe, "1"},
    {"transitions", "bRightandLeftWipe", &R::bRightandLeftWipe, "1"},
    {"transitions", "bUpAndDown", &R::bUpAndDown, "1"},
    {"transitions", "bCenter", &R::bCenter, "1"},
    {"transitions", "bHorizontalBlinds", &R::bHorizontalBlinds, "1"},
    {"transitions", "bVerticalBlinds", &R::bVerticalBlinds, "1"},
    {"transitions", "bFade", &R::bFade, "1"},
    {"image", "timeDisplay", &R::timeDisplay, "0"},
    {"date", "countdownMonth", &R::countdownMonth, "01"},
    {"date", "countdownDay", &R::countdownDay, "01"},
    {"date", "countdownYear", &R::countdownYear, "2030"},
    {"font", "newFontName", &R::newFontName, "Arial"},
    {"font", "newFontSize", &R::newFontSize, "20"},
    {"font", "newFontBold", &R::newFontBold, "False"},
    {"font", "newFontItalic", &R::newFontItalic, "False"},
    {"font", "newFontUnderline", &R::newFontUnderline, "False"},
    {"font", "newFontFontStrikethru", &R::newFontFontStrikethru, "False"},
    {"font", "newFontForeColor", &R::newFontForeColor, "16777215"},
});

// Absent, they leave the program as it is documented without them.
constexpr auto kExtra = std::to_array<Key>({
    {"extras", "transitionTime", &R::transitionTime, ""},
    {"extras", "otherScreens", &R::otherScreens, ""},
    {"extras", "livePreview", &R::livePreview, ""},
    {"extras", "log", &R::log, ""},
});

}  // namespace

const Key& TotalKey() { return kTotal; }
std::span<const Key> WrittenKeys() { return kWritten; }
std::span<const Key> ExtraKeys() { return kExtra; }

const Key* FindKey(std::string_view name) {
  if (base::EqualAsciiBlind(name, kTotal.name)) return &kTotal;
  for (const std::span<const Key> table : {WrittenKeys(), ExtraKeys()}) {
    for (const Key& key : table) {
      if (base::EqualAsciiBlind(name, key.name)) return &key;
    }
  }
  return nullptr;
}

}  // namespace settings
