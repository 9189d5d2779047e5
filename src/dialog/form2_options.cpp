// The option pages' handlers: each writes its setting into the record and shows what follows from it.
#include "base/gradient.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "dialog/form2.h"
#include "forms/picture.h"

namespace dialog {

namespace {

using R = settings::SettingsRecord;

constexpr int kDefaultSensitivity = 23;
constexpr int kSmallestFont = 10;
constexpr int kLargestFont = 48;

std::string FlagText(bool flag) { return flag ? "True" : "False"; }

}  // namespace

void Form2::connectOptions() {
  struct CheckRow {
    forms::CheckBox& box;
    std::string R::*field;
  };
  for (const CheckRow& row : {CheckRow{Standard, &R::bStandard},
                              {LWipe, &R::bLeftWipe},
                              {RWipe, &R::bRightWipe},
                              {RLWipe, &R::bRightandLeftWipe},
                              {UDWipe, &R::bUpAndDown},
                              {CenterWipe, &R::bCenter},
                              {HorizontalBlinds, &R::bHorizontalBlinds},
                              {VerticalBlinds, &R::bVerticalBlinds},
                              {Fade, &R::bFade}}) {
    row.box.onClick = [this, &box = row.box, field = row.field] {
      record.*field = box.value() == 1 ? "1" : "0";
    };
  }

  struct ChoiceRow {
    forms::OptionButton& option;
    std::string R::*field;
    const char* text;
  };
  for (const ChoiceRow& row : {ChoiceRow{CenterOption, &R::backgroundDisplay, "0"},
                               {FullScreenOption, &R::backgroundDisplay, "1"},
                               {TileOption, &R::backgroundDisplay, "2"}}) {
    row.option.onClick = [this, field = row.field, text = row.text] { record.*field = text; };
  }

  struct SliderRow {
    forms::Slider& slider;
    std::string R::*field;
  };
  for (const SliderRow& row : {SliderRow{floatSlider, &R::picSpeed}, {scrollSlider, &R::scrollSpeed}}) {
    row.slider.onChange = [this, &slider = row.slider, field = row.field] {
      record.*field = base::NumberText(std::int32_t{slider.value()});
    };
  }

  struct ComboTextRow {
    forms::ComboBox& combo;
    std::string R::*field;
  };
  for (const ComboTextRow& row : {ComboTextRow{monthCombo, &R::countdownMonth},
                                  {dayCombo, &R::countdownDay},
                                  {yearCombo, &R::countdownYear}}) {
    row.combo.onClick = [this, &combo = row.combo, field = row.field] { record.*field = combo.text(); };
  }

  backgroundColor.onClick = [this] { backgroundColor_Click(); };
  backgroundDesktop.onClick = [this] { backgroundDesktop_Click(); };
  backgroundCustomImage.onClick = [this] { backgroundCustomImage_Click(); };
  backgroundColorGradient.onClick = [this] { backgroundColorGradient_Click(); };
  backColorClick.onClick = [this] { backColorClick_Click(); };
  redSlider.onChange = [this] { redSlider_Change(); };
  greenSlider.onChange = [this] { greenSlider_Change(); };
  blueSlider.onChange = [this] { blueSlider_Change(); };
  aChange.onClick = [this] { aChange_Click(); };
  nChange.onClick = [this] { nChange_Click(); };
  Text2.onChange = [this] { Text2_Change(); };
  Text2.onLostFocus = [this] { Text2_LostFocus(); };
  changeVScroll1.onChange = [this] { changeVScroll1_Change(); };
  Random_select.onClick = [this] { Random_select_Click(); };
  pCenter.onClick = [this] { pCenter_Click(); };
  pRandom.onClick = [this] { pRandom_Click(); };
  scrollOption.onClick = [this] { scrollOption_Click(); };
  middleOption.onClick = [this] { middleOption_Click(); };
  font.onClick = [this] { font_Click(); };
  MouseSensitiveSlider.onChange = [this] { MouseSensitiveSlider_Change(); };
  defaultMouseSensitivity.onClick = [this] { defaultMouseSensitivity_Click(); };
  PercentSlider.onChange = [this] { PercentSlider_Change(); };
  noneOption.onClick = [this] { noneOption_Click(); };
  timeOption.onClick = [this] { timeOption_Click(); };
  yearOption.onClick = [this] { yearOption_Click(); };
  Cancel.onClick = [this] { Cancel_Click(); };
  Exit.onClick = [this] { Exit_Click(); };
}

void Form2::backgroundColor_Click() {
  record.backEffect = "0";
  showBackground(Background::SolidColor);
}

void Form2::backgroundDesktop_Click() {
  record.backEffect = "1";
  showBackground(Background::Desktop);
}

void Form2::backgroundCustomImage_Click() {
  record.backEffect = "2";
  showBackground(Background::CustomImage);
}

void Form2::backgroundColorGradient_Click() {
  record.backEffect = "3";
  showBackground(Background::Gradient);
}

void Form2::backColorClick_Click() {
  const std::optional<base::PackedColor> chosen =
      services_.dialogs.chooseColor({dlgDialog2.color, forms::kStartOnColor});
  if (!chosen) return;
  dlgDialog2.color = *chosen;
  record.newBackColor = base::NumberText(*chosen);
  Picture1.setBackColor(*chosen);
}

void Form2::redSlider_Change() {
  redPicture.setBackColor(base::Rgb(redSlider.value(), 0, 0));
  record.redBackground = base::NumberText(std::int32_t{redSlider.value()});
  UpdateGradientPreview();
}

void Form2::greenSlider_Change() {
  greenPicture.setBackColor(base::Rgb(0, greenSlider.value(), 0));
  record.greenBackground = base::NumberText(std::int32_t{greenSlider.value()});
  UpdateGradientPreview();
}

void Form2::blueSlider_Change() {
  bluePicture.setBackColor(base::Rgb(0, 0, blueSlider.value()));
  record.blueBackground = base::NumberText(std::int32_t{blueSlider.value()});
  UpdateGradientPreview();
}

void Form2::UpdateGradientPreview() {
  const base::PixelSize size = GradientPicture.scaleSize();
  // Read leniently: after a loading that failed early, a component may have no text yet.
  GradientPicture.paintPart(
      std::make_shared<base::Bitmap>(base::DrawGradient(
          size, {base::LenientInt32(record.redBackground), base::LenientInt32(record.greenBackground),
                 base::LenientInt32(record.blueBackground)})),
      base::PixelRect::ofSize(size));
}

void Form2::aChange_Click() {
  record.picChange = "ch";
  EnableChangeControls(true);
}

void Form2::nChange_Click() {
  record.picChange = "not_ch";
  record.timeInterval = "0";
  Text2.setText("0");
  EnableChangeControls(false);
  Random_select.setValue(0);
}

void Form2::Text2_Change() {
  const std::string& text = Text2.text();
  // A half-typed or foreign text moves nothing.
  if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) return;
  changeVScroll1.setValue(base::LenientInt32(text));
}

void Form2::Text2_LostFocus() { Text2.setText(base::NumberText(std::int32_t{changeVScroll1.value()})); }

void Form2::changeVScroll1_Change() {
  record.timeInterval = base::NumberText(std::int32_t{changeVScroll1.value()});
  Text2.setText(record.timeInterval);
}

void Form2::Random_select_Click() {
  record.randomPick = base::NumberText(std::int32_t{Random_select.value()});
}

void Form2::pCenter_Click() {
  record.picRandom = "cent";
  EnableFloatControls(false);
}

void Form2::pRandom_Click() {
  record.picRandom = "rand";
  EnableFloatControls(true);
}

void Form2::scrollOption_Click() {
  record.scroll = "0";
  scrollSlider.setEnabled(true);
}

void Form2::middleOption_Click() {
  record.scroll = "1";
  scrollSlider.setEnabled(false);
}

void Form2::font_Click() {
  const std::optional<forms::ChosenFont> chosen = services_.dialogs.chooseFont(
      {dlgDialog.font, dlgDialog.color, forms::kScreenFonts | forms::kFontEffects | forms::kLimitSize,
       kSmallestFont, kLargestFont});
  if (!chosen) return;
  dlgDialog = {chosen->font, chosen->color};
  record.newFontName = chosen->font.name;
  record.newFontSize = base::NumberText(chosen->font.sizePoints);
  record.newFontBold = FlagText(chosen->font.bold);
  record.newFontItalic = FlagText(chosen->font.italic);
  record.newFontUnderline = FlagText(chosen->font.underline);
  record.newFontFontStrikethru = FlagText(chosen->font.strikethrough);
  record.newFontForeColor = base::NumberText(chosen->color);
  Picture2.setBackColor(chosen->color);
}

void Form2::MouseSensitiveSlider_Change() {
  record.mouseSensitivity = base::NumberText(std::int32_t{MouseSensitiveSlider.value()});
}

void Form2::defaultMouseSensitivity_Click() {
  MouseSensitiveSlider.setValue(kDefaultSensitivity);
  record.mouseSensitivity = base::NumberText(std::int32_t{kDefaultSensitivity});
}

void Form2::PercentSlider_Change() {
  record.picturePercent = base::NumberText(std::int32_t{PercentSlider.value()});
  percentLabel.setCaption(record.picturePercent + "%");
}

void Form2::noneOption_Click() {
  EnableCountdownCombos(false);
  ShowCountdownCombosInactive();
  if (noneOption.value()) record.timeDisplay = "0";
}

void Form2::timeOption_Click() {
  EnableCountdownCombos(false);
  ShowCountdownCombosInactive();
  if (timeOption.value()) record.timeDisplay = "1";
}

void Form2::yearOption_Click() {
  EnableCountdownCombos(true);
  ShowCountdownCombosActive();
  if (yearOption.value()) record.timeDisplay = "2";
}

void Form2::Cancel_Click() { services_.windows.unload(*this); }

void Form2::Exit_Click() { services_.windows.unload(*this); }

}  // namespace dialog
