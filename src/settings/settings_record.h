// Every setting as the text that the settings file holds; each user converts what it needs.
#pragma once

#include <string>

namespace settings {

// Field names equal key names.
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
  std::string transitionTime, otherScreens, livePreview, log;
};

}  // namespace settings
