// What is enabled, and which colours say so, after each choice.
#include "dialog/form2.h"

namespace dialog {

void Form2::EnableSolidColorControls(bool enabled) {
  frameBackgroundColor.setEnabled(enabled);
  backColorClick.setEnabled(enabled);
}

void Form2::EnableCustomImageControls(bool enabled) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &frameCustomImage, &CenterOption, &FullScreenOption, &TileOption, &backgroundImageFile,
           &addBackImg, &removeBackImg}) {
    control->setEnabled(enabled);
  }
}

void Form2::EnableGradientControls(bool enabled) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &frameColorGradient, &redSlider, &greenSlider, &blueSlider, &redLabel, &greenLabel, &blueLabel}) {
    control->setEnabled(enabled);
  }
}

void Form2::showBackground(Background chosen) {
  const auto captionColor = [chosen](Background of) {
    return chosen == of ? base::kHighlight : base::kButtonText;
  };
  frameBackgroundColor.setForeColor(captionColor(Background::SolidColor));
  frameCustomImage.setForeColor(captionColor(Background::CustomImage));
  frameColorGradient.setForeColor(captionColor(Background::Gradient));
  backgroundImageFile.setBackColor(chosen == Background::CustomImage ? base::kWindowBackground
                                                                     : base::kThreeDLight);
  EnableSolidColorControls(chosen == Background::SolidColor);
  EnableCustomImageControls(chosen == Background::CustomImage);
  EnableGradientControls(chosen == Background::Gradient);
  showNotes();
}

void Form2::EnableChangeControls(bool enabled) {
  Text2.setEnabled(enabled);
  Text2.setBackColor(enabled ? base::kWindowBackground : base::kThreeDLight);
  Label3.setEnabled(enabled);
  changeVScroll1.setEnabled(enabled);
  Random_select.setEnabled(enabled);
}

void Form2::EnableFloatControls(bool enabled) {
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&floatSlider, &Label5_FloatSpeed, &Label11, &Label7}) {
    control->setEnabled(enabled);
  }
}

void Form2::EnableScrollControls(bool enabled) {
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&scrollSlider, &scrollSlowLabel, &scrollFastLabel}) {
    control->setEnabled(enabled);
  }
}

void Form2::EnableCountdownCombos(bool enabled) {
  for (forms::ComboBox* combo : {&monthCombo, &dayCombo, &yearCombo}) combo->setEnabled(enabled);
}

void Form2::ShowCountdownCombosActive() {
  for (forms::ComboBox* combo : {&monthCombo, &dayCombo, &yearCombo}) {
    combo->setBackColor(base::kWindowBackground);
  }
}

void Form2::ShowCountdownCombosInactive() {
  for (forms::ComboBox* combo : {&monthCombo, &dayCombo, &yearCombo}) combo->setBackColor(base::kThreeDLight);
}

}  // namespace dialog
