#include "dialog/form2.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "dialog/control_table.h"
#include "dialog/hint_table.h"
#include "settings/keys.h"

namespace dialog {

namespace {

float Twips(int tablePixels) { return static_cast<float>(tablePixels * kTwipsPerTablePixel); }

std::vector<std::string> Texts(std::span<const std::string_view> views) {
  return {views.begin(), views.end()};
}

std::vector<std::string> Numbers(int first, int last) {
  std::vector<std::string> numbers;
  for (int number = first; number <= last; ++number) {
    const std::string digits = base::NumberText(std::int32_t{number});
    numbers.push_back(digits.size() < 2 ? "0" + digits : digits);
  }
  return numbers;
}

void SetText(forms::Control& control, std::string_view text) {
  if (text.empty()) return;
  if (auto* captioned = dynamic_cast<forms::CaptionedControl*>(&control)) {
    captioned->setCaption(std::string(text));
  } else if (auto* label = dynamic_cast<forms::Label*>(&control)) {
    label->setCaption(std::string(text));
  }
}

// The value that a control has before anything is read: the key's default.
std::string DesignText(std::string settings::SettingsRecord::*field) {
  for (const settings::Key& key : settings::WrittenKeys()) {
    if (key.field == field) return key.fallback;
  }
  return {};
}

int DesignNumber(std::string settings::SettingsRecord::*field) {
  return base::StrictInt32(DesignText(field));
}

}  // namespace

Form2::Form2(const DialogServices& services, std::string programFolder)
    : Form("Form2"),
      SSTab1(*this, "SSTab1", Texts(TabCaptions())),
      services_(services),
      programFolder_(std::move(programFolder)) {
  setCaption(" Lumora Screen Saver");
  setClientSize(Twips(kClientWidth), Twips(kClientHeight));
  File.setChildren({&Save, &Exit});
  Help.setChildren({&LumoraHelp, &AboutLumora});
  Websites.setChildren({&Tolv});
  menu = {&File, &Help, &Websites};
  layOut();
  setDesignValues();
  connectOptions();
  connectHints();
  onLoad = [this] { Form_Load(); };
}

forms::Control* Form2::find(std::string_view name) const {
  for (forms::Control* control : controls()) {
    if (control->name() == name) return control;
  }
  return nullptr;
}

void Form2::layOut() {
  for (const ControlRow& row : ControlTable()) {
    forms::Control& control = *find(row.name);
    if (!row.container.empty()) control.setContainer(find(row.container));
    control.move(Twips(row.place.left), Twips(row.place.top), Twips(row.place.width),
                 Twips(row.place.height));
    SetText(control, row.caption);
    control.setToolTip(std::string(row.toolTip));
    control.setAccessibleName(std::string(row.accessibleName));
  }
  for (const RangeRow& row : RangeTable()) {
    auto& control = static_cast<forms::RangeControl&>(*find(row.name));
    control.setRange(row.min, row.max, 1, row.largeChange);
    if (auto* slider = dynamic_cast<forms::Slider*>(&control)) slider->setTickFrequency(row.tickFrequency);
  }
  for (const ComboRow& row : ComboTable()) {
    auto& combo = static_cast<forms::ComboBox&>(*find(row.name));
    combo.setItems(Numbers(row.first, row.last));
    combo.setText(std::string(row.initialText));
  }
  for (int i = 0; i < SSTab1.tabCount(); ++i) {
    // Two rows of tabs; the host measures their real height.
    SSTab1.page(i).move(Twips(4), Twips(46), SSTab1.width() - Twips(8), SSTab1.height() - Twips(50));
  }
  for (forms::PictureBox* box :
       {&photo1, &Picture1, &redPicture, &greenPicture, &bluePicture, &GradientPicture, &Picture2}) {
    box->border = true;
  }
  for (forms::TextBox* box : {&ImagePosition, &Text3, &backgroundImageFile}) box->locked = true;
  for (forms::Label* label : {&Label11, &Label8, &Label15, &scrollSlowLabel}) {
    label->align = forms::TextAlign::Right;
  }
  percentLabel.align = forms::TextAlign::Center;
  Text2.digitsOnly = true;
  Text2.maxLength = 4;
  up.glyph = forms::ButtonGlyph::Up;
  down.glyph = forms::ButtonGlyph::Down;
  Ok.isDefault = true;
  Cancel.isCancel = true;
  photo.setVisible(false);
  photo.setAutoSize(true);
  photo_caption.setVisible(false);
}

void Form2::setDesignValues() {
  using R = settings::SettingsRecord;
  Random_select.setDesignValue(DesignNumber(&R::randomPick));
  dlgDialog2.color = DesignNumber(&R::newBackColor);
  Picture1.setBackColor(dlgDialog2.color);
  backgroundColorGradient.setDesignValue(true);
  showBackground(Background::Gradient);
  aChange.setDesignValue(true);
  EnableChangeControls(true);
  Text2.setDesignText(DesignText(&R::timeInterval));
  changeVScroll1.setDesignValue(DesignNumber(&R::timeInterval));
  pCenter.setDesignValue(true);
  EnableFloatControls(false);
  floatSlider.setDesignValue(DesignNumber(&R::picSpeed));
  FullScreenOption.setDesignValue(true);
  redPicture.setBackColor(base::Rgb(redSlider.value(), 0, 0));
  greenPicture.setBackColor(base::Rgb(0, greenSlider.value(), 0));
  bluePicture.setBackColor(base::Rgb(0, 0, blueSlider.value()));
  middleOption.setDesignValue(true);
  scrollSlider.setEnabled(false);
  scrollSlider.setDesignValue(DesignNumber(&R::scrollSpeed));
  MouseSensitiveSlider.setDesignValue(DesignNumber(&R::mouseSensitivity));
  PercentSlider.setDesignValue(DesignNumber(&R::picturePercent));
  percentLabel.setCaption(DesignText(&R::picturePercent) + "%");
  for (forms::CheckBox* box : {&Standard, &LWipe, &RWipe, &RLWipe, &UDWipe, &CenterWipe, &HorizontalBlinds,
                               &VerticalBlinds, &Fade}) {
    box->setDesignValue(1);
  }
  noneOption.setDesignValue(true);
  EnableCountdownCombos(false);
  ShowCountdownCombosInactive();
  dlgDialog.font = {DesignText(&R::newFontName), base::StrictSingle(DesignText(&R::newFontSize))};
  dlgDialog.color = DesignNumber(&R::newFontForeColor);
  Picture2.setBackColor(dlgDialog.color);
  for (forms::TextBox* box : {&ImagePosition, &Text3, &backgroundImageFile})
    box->setBackColor(base::kThreeDLight);
  for (forms::TextBox* box : {&p_caption}) box->setBackColor(base::kWindowBackground);
  Text3.setDesignText("Total: 0");
}

void Form2::connectHints() {
  const auto show = [this](forms::Control& control, std::string hint) {
    control.onMouseMove = [this, hint = std::move(hint)](const forms::MouseEvent&) {
      SS_StatusBar.setPanelText(1, hint);
    };
  };
  for (const HintRow& row : HintTable()) show(*find(row.control), std::string(row.hint));
  for (const std::string_view name : HintClearingControls()) show(*find(name), {});
  onMouseMove = [this](const forms::MouseEvent&) { SS_StatusBar.setPanelText(1, {}); };
}

}  // namespace dialog
