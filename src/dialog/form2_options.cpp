// The option pages' handlers: each writes its setting into the record and shows what follows from it.
#include "base/gradient.h"
#include "base/number_text.h"
#include "dialog/form2.h"
#include "dialog/option_table.h"
#include "pictures/picture.h"

namespace dialog {

namespace {

constexpr int kDefaultSensitivity = 23;
constexpr int kSmallestFont = 10;
constexpr int kLargestFont = 48;

std::string FlagText(bool flag) { return flag ? "True" : "False"; }

}  // namespace

void Form2::connectOptions() {
  for (const OptionRow& row : OptionTable()) row.connect(*this);
  defaultMouseSensitivity.onClick = [this] { defaultMouseSensitivity_Click(); };
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

void Form2::UpdateGradientPreview() {
  const base::PixelSize size = GradientPicture.scaleSize();
  GradientPicture.cls();  // a drawing keeps the size that the box had
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
  EnableScrollControls(true);
}

void Form2::middleOption_Click() {
  record.scroll = "1";
  EnableScrollControls(false);
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
  showNotes();
}

void Form2::timeOption_Click() {
  EnableCountdownCombos(false);
  ShowCountdownCombosInactive();
  if (timeOption.value()) record.timeDisplay = "1";
  showNotes();
}

void Form2::yearOption_Click() {
  EnableCountdownCombos(true);
  ShowCountdownCombosActive();
  if (yearOption.value()) record.timeDisplay = "2";
  showNotes();
}

void Form2::Cancel_Click() { services_.windows.unload(*this); }

void Form2::Exit_Click() { services_.windows.unload(*this); }

}  // namespace dialog
