// Every form of the program at every usual number of dots per inch, by a font of known letters.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <string>

#include "auxwin/frm_about.h"
#include "auxwin/multi_files.h"
#include "dialog/more_options.h"
#include "forms/layout_scale.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

// A screen on which each letter is as wide as the widest system dialog font has them in the mean.
struct Screen : support::FakeWindowSystem {
  explicit Screen(int dotsPerInch) : dpi(dotsPerInch) {}
  int twipsPerPixel() const override { return static_cast<int>(std::lround(1440.0 / dpi)); }
  int widthOf(const std::string& text) const { return static_cast<int>(text.size()) * 6 * dpi / 96; }
  int lineHeight() const { return 15 * dpi / 96; }

  int dpi;
};

enum class Kind { Settings, More, Import, About };

class EveryForm : public testing::TestWithParam<std::tuple<Kind, int>> {
 protected:
  EveryForm() : screen(std::get<int>(GetParam())) {
    machine.setPictures({{"a.gif", "A"}});
    SettingsDialog& dialog = machine.openDialog();
    switch (std::get<Kind>(GetParam())) {
      case Kind::Settings:
        form = &dialog.form;
        break;
      case Kind::More:
        own = std::make_unique<MoreOptions>(dialog.form.services(), MoreChoices{dialog.form.record, {}});
        break;
      case Kind::Import:
        own = std::make_unique<auxwin::MultiFiles>(
            dialog.pictures.target(),
            auxwin::ImportServices{machine.files, machine.dialogs, machine.windows, machine.loop,
                                   machine.folders, machine.workers.maker()});
        break;
      case Kind::About:
        own = std::make_unique<auxwin::frmAbout>(nullptr, machine.shell, machine.windows);
        break;
    }
    if (own) form = own.get();
    before = form->host();
    form->setHost(&screen);
    form->setLayoutScale(forms::ScaleForFont(
        *form, {[this](const std::string& text) { return screen.widthOf(text); }, screen.lineHeight()}));
  }
  ~EveryForm() override { form->setHost(before); }

  // What is only there to be measured, and what the host places.
  static bool isPlaced(const forms::Control& control) {
    const std::string& name = control.name();
    return name != "photo" && name != "photo_caption" && control.kind() != forms::ControlKind::TabPage;
  }

  support::SettingsDialogMachine machine;
  Screen screen;
  std::unique_ptr<forms::Form> own;
  forms::Form* form = nullptr;
  forms::FormHost* before = nullptr;
};

TEST_P(EveryForm, HasRoomForEachText) {
  const int air = screen.dpi / 96;
  for (const forms::Control* control : form->controls()) {
    const base::PixelSize room = control->pixelRect().size();
    std::string text;
    int beside = 0;
    if (const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control)) {
      text = captioned->caption();
      std::erase(text, '&');
      beside = (control->kind() == forms::ControlKind::CommandButton ? 12 : 18) * air;
    }
    if (const auto* label = dynamic_cast<const forms::Label*>(control)) {
      text = label->caption();
      if (label->hasMnemonic) std::erase(text, '&');
      if (label->wraps) {
        // A few letters of each line are lost where the next word does not fit.
        const int lines = screen.widthOf(text) * 9 / 8 / std::max(1, room.width) + 1;
        EXPECT_LE(lines * screen.lineHeight(), room.height) << control->name();
        continue;
      }
    }
    EXPECT_LE(screen.widthOf(text) + beside, room.width) << control->name() << ": " << text;
    if (!text.empty()) {
      EXPECT_LE(screen.lineHeight(), room.height) << control->name();
    }
    const auto* combo = dynamic_cast<const forms::ComboBox*>(control);
    for (const std::string& item : combo ? combo->items() : std::vector<std::string>()) {
      EXPECT_LE(screen.widthOf(item) + 28 * air, room.width) << item;
    }
  }
}

TEST_P(EveryForm, HasNoControlOnAnother) {
  const auto& controls = form->controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const forms::Control& a = *controls[i];
      const forms::Control& b = *controls[j];
      if (a.container() != b.container() || !isPlaced(a) || !isPlaced(b)) continue;
      EXPECT_TRUE(a.pixelRect().intersected(b.pixelRect()).isEmpty()) << a.name() << " and " << b.name();
    }
  }
}

TEST_P(EveryForm, HasEachControlInsideWhatItStandsOn) {
  for (const forms::Control* control : form->controls()) {
    if (!isPlaced(*control)) continue;
    const forms::Control* on = control->container();
    EXPECT_GE(control->left(), 0) << control->name();
    EXPECT_GE(control->top(), 0) << control->name();
    EXPECT_LE(control->left() + control->width(), on ? on->width() : form->clientWidth()) << control->name();
    EXPECT_LE(control->top() + control->height(), on ? on->height() : form->clientHeight())
        << control->name();
  }
}

// A letter may stand for several options of different tabs, and for none that are seen together.
TEST_P(EveryForm, HasEachMnemonicOnceOnWhatIsSeenTogether) {
  std::map<const forms::Control*, std::string> letters;  // by page; null: on all of them
  for (const forms::Control* control : form->controls()) {
    const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control);
    const auto* label = dynamic_cast<const forms::Label*>(control);
    std::string text = captioned ? captioned->caption() : std::string();
    if (label && label->hasMnemonic) text = label->caption();
    const std::size_t mark = text.find('&');
    if (mark == std::string::npos || control->name() == "pCenter") continue;  // "&Center" is given
    const forms::Control* page = control;
    while (page && page->kind() != forms::ControlKind::TabPage) page = page->container();
    letters[page] += static_cast<char>(std::toupper(text.at(mark + 1)));
  }
  const std::string common = letters[nullptr];
  for (auto& [page, own_letters] : letters) {
    std::string seen = own_letters + (page ? common : "");
    std::ranges::sort(seen);
    EXPECT_TRUE(std::ranges::adjacent_find(seen) == seen.end())
        << (page ? page->name() : "the form") << ": " << seen;
  }
}

INSTANTIATE_TEST_SUITE_P(AtEachNumberOfDots, EveryForm,
                         testing::Combine(testing::Values(Kind::Settings, Kind::More, Kind::Import,
                                                          Kind::About),
                                          testing::Values(96, 120, 144, 192)));

}  // namespace
}  // namespace dialog
