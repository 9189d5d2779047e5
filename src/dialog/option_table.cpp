#include "dialog/option_table.h"

#include <algorithm>
#include <cstddef>

#include "base/color.h"
#include "base/number_text.h"
#include "dialog/form2.h"

namespace dialog {

namespace {

using F = Form2;
using R = settings::SettingsRecord;
using Text = const std::string&;

int Number(Text text) { return base::StrictInt32(text); }

// A colour as a control can show it.
base::PackedColor Color(Text text) {
  const base::PackedColor color = Number(text);
  return base::IsSystemColor(color) ? base::PlainColor(color) : color & 0xFFFFFF;
}

// A check box: "1" or "0".
template <settings::Field kField, auto kBox>
constexpr OptionRow kCheckBox{
    kField,
    [](Form2& form, Text text) { (form.*kBox).setValue(Number(text)); },
    [](Form2& form) {
      (form.*kBox).onClick = [&form] { form.record.*kField = (form.*kBox).value() == 1 ? "1" : "0"; };
    },
};

// A slider: its value.
template <settings::Field kField, auto kRange>
constexpr OptionRow kSlider{
    kField,
    [](Form2& form, Text text) { (form.*kRange).setValue(Number(text)); },
    [](Form2& form) {
      (form.*kRange).onChange = [&form] {
        form.record.*kField = base::NumberText(std::int32_t{(form.*kRange).value()});
      };
    },
};

// A combo box: its text.
template <settings::Field kField, auto kList>
constexpr OptionRow kCombo{
    kField,
    [](Form2& form, Text text) { (form.*kList).setText(text); },
    [](Form2& form) {
      (form.*kList).onClick = [&form] {
        form.record.*kField = (form.*kList).text();
        form.showNotes();
      };
    },
};

// Option buttons that stand for the numbers from 0; any other number chooses none of them.
template <auto... kOptions>
void Choose(Form2& form, Text text) {
  const int chosen = Number(text);
  int number = 0;
  ((number++ == chosen ? (form.*kOptions).setValue(true) : void()), ...);
}

template <settings::Field kField, auto... kOptions>
void ConnectChoice(Form2& form) {
  int number = 0;
  (((form.*kOptions).onClick =
        [&form, text = base::NumberText(std::int32_t{number++})] { form.record.*kField = text; }),
   ...);
}

template <settings::Field kField, auto... kOptions>
constexpr OptionRow kChoice{kField, Choose<kOptions...>, ConnectChoice<kField, kOptions...>};

// The slider of one colour component, and the swatch that shows it by itself. The component is worth
// `kWorth` in a packed colour.
template <settings::Field kField, auto kSlider, auto kSwatch, int kWorth>
constexpr OptionRow kComponent{
    kField,
    [](Form2& form, Text text) {
      (form.*kSlider).setValue(Number(text));
      (form.*kSwatch).setBackColor(std::clamp(Number(text), 0, 255) * kWorth);
      form.UpdateGradientPreview();
    },
    [](Form2& form) {
      (form.*kSlider).onChange = [&form] {
        const int value = (form.*kSlider).value();
        (form.*kSwatch).setBackColor(value * kWorth);
        form.record.*kField = base::NumberText(std::int32_t{value});
        form.UpdateGradientPreview();
      };
    },
};

// One of the font's flags: "True" or "False". The font dialog sets them all.
template <settings::Field kField, auto kFlag>
constexpr OptionRow kFontFlag{
    kField,
    [](Form2& form, Text text) { form.dlgDialog.font.*kFlag = base::StrictBoolean(text); },
    [](Form2&) {},
};

void ConnectBackEffect(Form2& form) {
  form.backgroundColor.onClick = [&form] { form.backgroundColor_Click(); };
  form.backgroundDesktop.onClick = [&form] { form.backgroundDesktop_Click(); };
  form.backgroundCustomImage.onClick = [&form] { form.backgroundCustomImage_Click(); };
  form.backgroundColorGradient.onClick = [&form] { form.backgroundColorGradient_Click(); };
}

void ConnectInterval(Form2& form) {
  form.Text2.onChange = [&form] { form.Text2_Change(); };
  form.Text2.onLostFocus = [&form] { form.Text2_LostFocus(); };
  form.changeVScroll1.onChange = [&form] { form.changeVScroll1_Change(); };
}

// Whatever the choice, options and combo boxes stay usable on opening; only the combo boxes' colour tells
// whether the countdown is in force. Clicking an option later also disables them.
void ShowTimeDisplay(Form2& form, Text text) {
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

void ConnectTimeDisplay(Form2& form) {
  form.noneOption.onClick = [&form] { form.noneOption_Click(); };
  form.timeOption.onClick = [&form] { form.timeOption_Click(); };
  form.yearOption.onClick = [&form] { form.yearOption_Click(); };
}

constexpr OptionRow kRows[] = {
    kCheckBox<&R::randomPick, &F::Random_select>,
    {&R::newBackColor,
     [](F& form, Text text) {
       form.dlgDialog2.color = Color(text);
       form.Picture1.setBackColor(form.dlgDialog2.color);
     },
     [](F& form) { form.backColorClick.onClick = [&form] { form.backColorClick_Click(); }; }},
    {&R::backEffect,
     Choose<&F::backgroundColor, &F::backgroundDesktop, &F::backgroundCustomImage,
            &F::backgroundColorGradient>,
     ConnectBackEffect},
    {&R::picRandom, [](F& form, Text text) { (text == "cent" ? form.pCenter : form.pRandom).setValue(true); },
     [](F& form) {
       form.pCenter.onClick = [&form] { form.pCenter_Click(); };
       form.pRandom.onClick = [&form] { form.pRandom_Click(); };
     }},
    kSlider<&R::picSpeed, &F::floatSlider>,
    {&R::picChange, [](F& form, Text text) { (text == "ch" ? form.aChange : form.nChange).setValue(true); },
     [](F& form) {
       form.aChange.onClick = [&form] { form.aChange_Click(); };
       form.nChange.onClick = [&form] { form.nChange_Click(); };
     }},
    {&R::timeInterval,
     [](F& form, Text text) {
       form.Text2.setText(text);
       form.changeVScroll1.setValue(Number(text));
     },
     ConnectInterval},
    kChoice<&R::backgroundDisplay, &F::CenterOption, &F::FullScreenOption, &F::TileOption>,
    kComponent<&R::redBackground, &F::redSlider, &F::redPicture, 1>,
    kComponent<&R::greenBackground, &F::greenSlider, &F::greenPicture, 0x100>,
    kComponent<&R::blueBackground, &F::blueSlider, &F::bluePicture, 0x10000>,
    {&R::scroll, Choose<&F::scrollOption, &F::middleOption>,
     [](F& form) {
       form.scrollOption.onClick = [&form] { form.scrollOption_Click(); };
       form.middleOption.onClick = [&form] { form.middleOption_Click(); };
     }},
    kSlider<&R::mouseSensitivity, &F::MouseSensitiveSlider>,
    {&R::picturePercent,
     [](F& form, Text text) {
       form.PercentSlider.setValue(Number(text));
       form.percentLabel.setCaption(text + "%");
     },
     [](F& form) { form.PercentSlider.onChange = [&form] { form.PercentSlider_Change(); }; }},
    kSlider<&R::scrollSpeed, &F::scrollSlider>,
    kCheckBox<&R::bStandard, &F::Standard>,
    kCheckBox<&R::bLeftWipe, &F::LWipe>,
    kCheckBox<&R::bRightWipe, &F::RWipe>,
    kCheckBox<&R::bRightandLeftWipe, &F::RLWipe>,
    kCheckBox<&R::bUpAndDown, &F::UDWipe>,
    kCheckBox<&R::bCenter, &F::CenterWipe>,
    kCheckBox<&R::bHorizontalBlinds, &F::HorizontalBlinds>,
    kCheckBox<&R::bVerticalBlinds, &F::VerticalBlinds>,
    kCheckBox<&R::bFade, &F::Fade>,
    {&R::timeDisplay, ShowTimeDisplay, ConnectTimeDisplay},
    kCombo<&R::countdownMonth, &F::monthCombo>,
    kCombo<&R::countdownDay, &F::dayCombo>,
    kCombo<&R::countdownYear, &F::yearCombo>,
    {&R::newFontName, [](F& form, Text text) { form.dlgDialog.font.name = text; },
     [](F& form) { form.font.onClick = [&form] { form.font_Click(); }; }},
    {&R::newFontSize, [](F& form, Text text) { form.dlgDialog.font.sizePoints = base::StrictSingle(text); },
     [](F&) {}},
    kFontFlag<&R::newFontBold, &base::Font::bold>,
    kFontFlag<&R::newFontItalic, &base::Font::italic>,
    kFontFlag<&R::newFontUnderline, &base::Font::underline>,
    kFontFlag<&R::newFontFontStrikethru, &base::Font::strikethrough>,
    {&R::newFontForeColor,
     [](F& form, Text text) {
       form.dlgDialog.color = Color(text);
       form.Picture2.setBackColor(form.dlgDialog.color);
     },
     [](F&) {}},
};

}  // namespace

std::span<const OptionRow> OptionTable() { return kRows; }

}  // namespace dialog
