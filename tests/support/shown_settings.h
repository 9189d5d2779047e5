// What the settings dialog's controls show.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "dialog/form2.h"

namespace support {

// What a control shows, as text.
inline std::string ShownFor(dialog::Form2& form, const std::string& key) {
  const auto option = [](std::initializer_list<forms::OptionButton*> options) {
    std::string chosen;
    for (forms::OptionButton* each : options) chosen += each->value() ? each->name() : "";
    return chosen;
  };
  const auto color = [](base::PackedColor value) { return std::to_string(value); };
  const auto flag = [](bool value) { return std::string(value ? "True" : "False"); };
  const base::Font& font = form.dlgDialog.font;
  const std::map<std::string, std::function<std::string()>> shown = {
      {"randomPick", [&] { return std::to_string(form.Random_select.value()); }},
      {"newBackColor", [&] { return color(form.dlgDialog2.color) + " " + color(form.Picture1.backColor()); }},
      {"backEffect",
       [&] {
         return option({&form.backgroundColor, &form.backgroundDesktop, &form.backgroundCustomImage,
                        &form.backgroundColorGradient});
       }},
      {"picRandom",
       [&] {
         return option({&form.pCenter, &form.pRandom});
       }},
      {"picSpeed", [&] { return std::to_string(form.floatSlider.value()); }},
      {"picChange",
       [&] {
         return option({&form.aChange, &form.nChange});
       }},
      {"timeInterval", [&] { return form.Text2.text() + " " + std::to_string(form.changeVScroll1.value()); }},
      {"backgroundDisplay",
       [&] {
         return option({&form.CenterOption, &form.FullScreenOption, &form.TileOption});
       }},
      {"redBackground",
       [&] { return std::to_string(form.redSlider.value()) + " " + color(form.redPicture.backColor()); }},
      {"greenBackground",
       [&] { return std::to_string(form.greenSlider.value()) + " " + color(form.greenPicture.backColor()); }},
      {"blueBackground",
       [&] { return std::to_string(form.blueSlider.value()) + " " + color(form.bluePicture.backColor()); }},
      {"scroll",
       [&] {
         return option({&form.scrollOption, &form.middleOption});
       }},
      {"mouseSensitivity", [&] { return std::to_string(form.MouseSensitiveSlider.value()); }},
      {"picturePercent",
       [&] { return std::to_string(form.PercentSlider.value()) + " " + form.percentLabel.caption(); }},
      {"scrollSpeed", [&] { return std::to_string(form.scrollSlider.value()); }},
      {"bStandard", [&] { return std::to_string(form.Standard.value()); }},
      {"bLeftWipe", [&] { return std::to_string(form.LWipe.value()); }},
      {"bRightWipe", [&] { return std::to_string(form.RWipe.value()); }},
      {"bRightandLeftWipe", [&] { return std::to_string(form.RLWipe.value()); }},
      {"bUpAndDown", [&] { return std::to_string(form.UDWipe.value()); }},
      {"bCenter", [&] { return std::to_string(form.CenterWipe.value()); }},
      {"bHorizontalBlinds", [&] { return std::to_string(form.HorizontalBlinds.value()); }},
      {"bVerticalBlinds", [&] { return std::to_string(form.VerticalBlinds.value()); }},
      {"bFade", [&] { return std::to_string(form.Fade.value()); }},
      {"timeDisplay",
       [&] {
         return option({&form.noneOption, &form.timeOption, &form.yearOption});
       }},
      {"countdownMonth", [&] { return form.monthCombo.text(); }},
      {"countdownDay", [&] { return form.dayCombo.text(); }},
      {"countdownYear", [&] { return form.yearCombo.text(); }},
      {"newFontName", [&] { return font.name; }},
      {"newFontSize", [&] { return std::to_string(font.sizePoints).substr(0, 4); }},
      {"newFontBold", [&] { return flag(font.bold); }},
      {"newFontItalic", [&] { return flag(font.italic); }},
      {"newFontUnderline", [&] { return flag(font.underline); }},
      {"newFontFontStrikethru", [&] { return flag(font.strikethrough); }},
      {"newFontForeColor",
       [&] { return color(form.dlgDialog.color) + " " + color(form.Picture2.backColor()); }},
  };
  return shown.at(key)();
}

}  // namespace support
