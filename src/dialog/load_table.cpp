#include "dialog/load_table.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/system_colors.h"
#include "dialog/form2.h"

namespace dialog {

namespace {

using R = settings::SettingsRecord;
using Text = const std::string&;

int Number(Text text) { return base::StrictInt32(text); }

int Component(Text text) { return std::clamp(Number(text), 0, 255); }

// A colour as a control can show it.
base::PackedColor Color(Text text) {
  const base::PackedColor color = Number(text);
  return base::IsSystemColor(color) ? base::PlainColor(color) : color & 0xFFFFFF;
}

void ApplyBackEffect(Form2& form, Text text) {
  switch (Number(text)) {
    case 0:
      form.backgroundColor.setValue(true);
      break;
    case 1:
      form.backgroundDesktop.setValue(true);
      break;
    case 2:
      form.backgroundCustomImage.setValue(true);
      break;
    case 3:
      form.backgroundColorGradient.setValue(true);
      break;
    default:
      break;
  }
}

void ApplyBackgroundDisplay(Form2& form, Text text) {
  switch (Number(text)) {
    case 0:
      form.CenterOption.setValue(true);
      break;
    case 1:
      form.FullScreenOption.setValue(true);
      break;
    case 2:
      form.TileOption.setValue(true);
      break;
    default:
      break;
  }
}

void ApplyScroll(Form2& form, Text text) {
  const int scroll = Number(text);
  if (scroll == 0) form.scrollOption.setValue(true);
  if (scroll == 1) form.middleOption.setValue(true);
}

// Whatever the choice, options and combo boxes stay usable on opening; only the combo boxes' colour tells
// whether the countdown is in force. Clicking an option later also disables them.
void ApplyTimeDisplay(Form2& form, Text text) {
  const int display = Number(text);
  if (display == 0 || display == 1) {
    (display == 0 ? form.noneOption : form.timeOption).setValue(true);
    form.ShowCountdownCombosInactive();
  } else {
    form.yearOption.setValue(true);
    form.ShowCountdownCombosActive();
  }
  for (forms::OptionButton* option : {&form.noneOption, &form.timeOption, &form.yearOption}) {
    option->setEnabled(true);
  }
  form.EnableCountdownCombos(true);
}

// clang-format off
constexpr LoadRow kRows[] = {
    {1, "image", "randomPick", &R::randomPick, [](Form2& f, Text t) { f.Random_select.setValue(Number(t)); }},
    {2, "background", "newBackColor", &R::newBackColor,
     [](Form2& f, Text t) { f.dlgDialog2.color = Color(t); f.Picture1.setBackColor(f.dlgDialog2.color); }},
    {3, "background", "backEffect", &R::backEffect, ApplyBackEffect},
    {4, "image", "picRandom", &R::picRandom,
     [](Form2& f, Text t) { (t == "cent" ? f.pCenter : f.pRandom).setValue(true); }},
    {5, "image", "picSpeed", &R::picSpeed, [](Form2& f, Text t) { f.floatSlider.setValue(Number(t)); }},
    {6, "image", "picChange", &R::picChange,
     [](Form2& f, Text t) { (t == "ch" ? f.aChange : f.nChange).setValue(true); }},
    {7, "image", "timeInterval", &R::timeInterval,
     [](Form2& f, Text t) { f.Text2.setText(t); f.changeVScroll1.setValue(Number(t)); }},
    {8, "background", "backgroundDisplay", &R::backgroundDisplay, ApplyBackgroundDisplay},
    {9, "background", "redBackground", &R::redBackground,
     [](Form2& f, Text t) { f.redSlider.setValue(Number(t)); f.redPicture.setBackColor(base::Rgb(Component(t), 0, 0)); }},
    {10, "background", "greenBackground", &R::greenBackground,
     [](Form2& f, Text t) { f.greenSlider.setValue(Number(t)); f.greenPicture.setBackColor(base::Rgb(0, Component(t), 0)); }},
    {11, "background", "blueBackground", &R::blueBackground,
     [](Form2& f, Text t) {
       f.blueSlider.setValue(Number(t));
       f.bluePicture.setBackColor(base::Rgb(0, 0, Component(t)));
       f.UpdateGradientPreview();
     }},
    {12, "font", "scroll", &R::scroll, ApplyScroll},
    {13, "image", "mouseSensitivity", &R::mouseSensitivity,
     [](Form2& f, Text t) { f.MouseSensitiveSlider.setValue(Number(t)); }},
    {14, "image", "picturePercent", &R::picturePercent,
     [](Form2& f, Text t) { f.PercentSlider.setValue(Number(t)); f.percentLabel.setCaption(t + "%"); }},
    {15, "font", "scrollSpeed", &R::scrollSpeed, [](Form2& f, Text t) { f.scrollSlider.setValue(Number(t)); }},
    {16, "transitions", "bStandard", &R::bStandard, [](Form2& f, Text t) { f.Standard.setValue(Number(t)); }},
    {16, "transitions", "bLeftWipe", &R::bLeftWipe, [](Form2& f, Text t) { f.LWipe.setValue(Number(t)); }},
    {16, "transitions", "bRightWipe", &R::bRightWipe, [](Form2& f, Text t) { f.RWipe.setValue(Number(t)); }},
    {16, "transitions", "bRightandLeftWipe", &R::bRightandLeftWipe, [](Form2& f, Text t) { f.RLWipe.setValue(Number(t)); }},
    {16, "transitions", "bUpAndDown", &R::bUpAndDown, [](Form2& f, Text t) { f.UDWipe.setValue(Number(t)); }},
    {16, "transitions", "bCenter", &R::bCenter, [](Form2& f, Text t) { f.CenterWipe.setValue(Number(t)); }},
    {16, "transitions", "bHorizontalBlinds", &R::bHorizontalBlinds, [](Form2& f, Text t) { f.HorizontalBlinds.setValue(Number(t)); }},
    {16, "transitions", "bVerticalBlinds", &R::bVerticalBlinds, [](Form2& f, Text t) { f.VerticalBlinds.setValue(Number(t)); }},
    {16, "transitions", "bFade", &R::bFade, [](Form2& f, Text t) { f.Fade.setValue(Number(t)); }},
    {17, "image", "timeDisplay", &R::timeDisplay, ApplyTimeDisplay},
    {18, "date", "countdownMonth", &R::countdownMonth, [](Form2& f, Text t) { f.monthCombo.setText(t); }},
    {18, "date", "countdownDay", &R::countdownDay, [](Form2& f, Text t) { f.dayCombo.setText(t); }},
    {18, "date", "countdownYear", &R::countdownYear, [](Form2& f, Text t) { f.yearCombo.setText(t); }},
    {19, "font", "newFontName", &R::newFontName, [](Form2& f, Text t) { f.dlgDialog.font.name = t; }},
    {19, "font", "newFontSize", &R::newFontSize, [](Form2& f, Text t) { f.dlgDialog.font.sizePoints = base::StrictSingle(t); }},
    {19, "font", "newFontBold", &R::newFontBold, [](Form2& f, Text t) { f.dlgDialog.font.bold = base::StrictBoolean(t); }},
    {19, "font", "newFontItalic", &R::newFontItalic, [](Form2& f, Text t) { f.dlgDialog.font.italic = base::StrictBoolean(t); }},
    {19, "font", "newFontUnderline", &R::newFontUnderline, [](Form2& f, Text t) { f.dlgDialog.font.underline = base::StrictBoolean(t); }},
    {19, "font", "newFontFontStrikethru", &R::newFontFontStrikethru, [](Form2& f, Text t) { f.dlgDialog.font.strikethrough = base::StrictBoolean(t); }},
    {19, "font", "newFontForeColor", &R::newFontForeColor,
     [](Form2& f, Text t) { f.dlgDialog.color = Color(t); f.Picture2.setBackColor(f.dlgDialog.color); }},
};
// clang-format on

}  // namespace

std::span<const LoadRow> LoadTable() { return kRows; }

}  // namespace dialog
