#include "support/plain_show.h"

namespace support {

Settings PlainShow() {
  return {
      {"image/randomPick", "0"},
      {"image/picSpeed", "2"},
      {"image/timeInterval", "1"},
      {"image/picRandom", "cent"},
      {"image/picChange", "ch"},
      {"image/mouseSensitivity", "23"},
      {"image/picturePercent", "90"},
      {"image/timeDisplay", "0"},
      {"background/newBackColor", "0"},
      {"background/backEffect", "0"},
      {"background/backgroundImage", ""},
      {"background/backgroundDisplay", "0"},
      {"background/redBackground", "0"},
      {"background/greenBackground", "0"},
      {"background/blueBackground", "0"},
      {"font/newFontName", "Arial"},
      {"font/newFontSize", "10"},
      {"font/newFontBold", "False"},
      {"font/newFontItalic", "False"},
      {"font/newFontUnderline", "False"},
      {"font/newFontFontStrikethru", "False"},
      {"font/newFontForeColor", "16777215"},
      {"font/scroll", "1"},
      {"font/scrollSpeed", "150"},
      {"transitions/bStandard", "0"},
      {"transitions/bLeftWipe", "0"},
      {"transitions/bRightWipe", "0"},
      {"transitions/bRightandLeftWipe", "0"},
      {"transitions/bUpAndDown", "0"},
      {"transitions/bCenter", "0"},
      {"transitions/bHorizontalBlinds", "0"},
      {"transitions/bVerticalBlinds", "0"},
      {"transitions/bFade", "0"},
      {"date/countdownMonth", "12"},
      {"date/countdownDay", "25"},
      {"date/countdownYear", "2026"},
  };
}

std::string IniText(const Settings& settings) {
  Settings sections;
  for (const auto& [where, value] : settings) {
    const std::size_t slash = where.find('/');
    sections[where.substr(0, slash)] += where.substr(slash + 1) + "=" + value + "\r\n";
  }
  std::string text;
  for (const auto& [section, keys] : sections) text += "[" + section + "]\r\n" + keys;
  return text;
}

}  // namespace support
