#include "dialog/form2.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "dialog/control_table.h"
#include "dialog/option_table.h"

namespace dialog {

namespace {

std::vector<std::string> Numbers(int first, int last) {
  std::vector<std::string> numbers;
  for (int number = first; number <= last; ++number) {
    const std::string digits = base::NumberText(std::int32_t{number});
    numbers.push_back(digits.size() < 2 ? "0" + digits : digits);
  }
  return numbers;
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

void Form2::layOut() {
  LayOut(*this, ControlTable(), RangeTable());
  for (const ComboRow& row : ComboTable()) (this->*row.control).setItems(Numbers(row.first, row.last));
  for (int i = 0; i < SSTab1.tabCount(); ++i) {
    // Two rows of tabs; the host measures their real height.
    SSTab1.page(i).move(Twips(4), Twips(46), SSTab1.width() - Twips(8), SSTab1.height() - Twips(50));
  }
  for (forms::PictureBox* box :
       {&photo1, &Picture1, &redPicture, &greenPicture, &bluePicture, &GradientPicture, &Picture2}) {
    box->border = true;
  }
  for (forms::TextBox* box : {&ImagePosition, &Text3, &backgroundImageFile}) box->locked = true;
  for (forms::Label* label : {&Label11, &Label8, &Label13, &Label15, &scrollSlowLabel}) {
    label->align = forms::TextAlign::Right;
  }
  percentLabel.align = forms::TextAlign::Center;
  List1.multiSelect = true;
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

// Every control starts with its setting's fallback. Nobody listens yet, so that the record stays empty.
void Form2::setDesignValues() {
  for (const OptionRow& row : OptionTable()) row.show(*this, settings::KeyOf(row.field).fallback);
  for (forms::Slider* slider : {&redSlider, &greenSlider, &blueSlider}) slider->setValue(0);
  for (forms::PictureBox* swatch : {&redPicture, &greenPicture, &bluePicture}) {
    swatch->setBackColor(base::kBlack);
  }
  for (const ComboRow& row : ComboTable()) (this->*row.control).setText(std::string(row.initialText));
  showBackground(Background::Gradient);
  EnableChangeControls(true);
  EnableFloatControls(false);
  EnableScrollControls(false);
  EnableCountdownCombos(false);
  ShowCountdownCombosInactive();
  for (forms::TextBox* box : {&ImagePosition, &Text3, &backgroundImageFile}) {
    box->setBackColor(base::kThreeDLight);
  }
  p_caption.setBackColor(base::kWindowBackground);
  Text3.setDesignText("Total: 0");
}

void Form2::connectHints() { ConnectHints(*this, ControlTable(), SS_StatusBar); }

}  // namespace dialog
