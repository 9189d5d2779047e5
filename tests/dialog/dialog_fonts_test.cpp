// The dialog in the fonts that Windows uses for dialogs.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "auxwin/multi_files.h"
#include "dialog/control_table.h"
#include "forms/layout_scale.h"
#include "support/dialog_machine.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"

namespace dialog {
namespace {

// What the letters of Segoe UI take in width, in 2048ths of the font's size.
int Advance(char letter) {
  static const std::map<char, int> advances = {
      {'a', 1042}, {'b', 1204}, {'c', 946},  {'d', 1206}, {'e', 1071}, {'f', 641},  {'g', 1206}, {'h', 1158},
      {'i', 496},  {'j', 496},  {'k', 1018}, {'l', 496},  {'m', 1763}, {'n', 1158}, {'o', 1200}, {'p', 1204},
      {'q', 1206}, {'r', 711},  {'s', 869},  {'t', 694},  {'u', 1158}, {'v', 980},  {'w', 1480}, {'x', 940},
      {'y', 991},  {'z', 926},  {'A', 1321}, {'B', 1174}, {'C', 1268}, {'D', 1437}, {'E', 1036}, {'F', 999},
      {'G', 1406}, {'H', 1454}, {'I', 545},  {'J', 731},  {'K', 1188}, {'L', 963},  {'M', 1839}, {'N', 1532},
      {'O', 1544}, {'P', 1147}, {'Q', 1544}, {'R', 1225}, {'S', 1087}, {'T', 1073}, {'U', 1407}, {'V', 1272},
      {'W', 1913}, {'X', 1209}, {'Y', 1132}, {'Z', 1168}, {' ', 561},  {':', 444},  {'.', 444},  {',', 444},
      {'(', 618},  {')', 618},  {'\'', 471},
  };
  const auto found = advances.find(letter);
  return found == advances.end() ? 1104 : found->second;  // a digit
}

constexpr int kDesignDpi = 96;

struct DialogFonts : testing::Test {
  struct Host : support::FakeWindowSystem {
    int perPixel = 15;
    int twipsPerPixel() const override { return perPixel; }
  };

  support::DialogMachine machine;
  Form2& form = machine.open();
  Host host;

  ~DialogFonts() override { form.setHost(&machine.windows); }

  static int pixels(float points, int dpi) {
    return static_cast<int>(std::lround(points * static_cast<float>(dpi) / 72));
  }
  static int widthOf(const std::string& text, int size) {
    int width = 0;
    for (const char letter : text) width += (Advance(letter) * size + 1024) / 2048;
    return width;
  }
  // Lays a form out as its window does; the dialog, where none is given.
  void layOut(float points, int dpi) { layOut(form, points, dpi); }
  void layOut(forms::Form& laidOut, float points, int dpi) {
    host.perPixel = 1440 / dpi;
    laidOut.setHost(&host);
    const int size = pixels(points, dpi);
    const forms::FontMeasure font{[size](const std::string& text) { return widthOf(text, size); },
                                  static_cast<int>(std::ceil(static_cast<float>(size) * 1.33F))};
    laidOut.setLayoutScale(forms::ScaleForFont(laidOut, font));
  }
};

// The folder import is laid out by the same rule; what it says of its progress has room as well.
TEST_F(DialogFonts, TheImportsTextsFit) {
  support::FakeClock clock;
  support::FakeEventLoop loop(clock);
  auxwin::ManyImagesAdvice advice;
  auxwin::MultiFiles import({form.List1, form.photo_caption, form.Text3, advice, nullptr, nullptr},
                            {machine.files, machine.dialogs, machine.windows, loop, nullptr, nullptr});
  for (const int dpi : {96, 120, 144, 192}) {
    for (const float points : {9.0F, 11.0F, 13.5F, 20.25F}) {
      layOut(import, points, dpi);
      for (const forms::Control* control : import.controls()) {
        const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control);
        if (!captioned) continue;
        std::string text = captioned->caption();
        std::erase(text, '&');
        const int box = control->kind() == forms::ControlKind::CheckBox ? 18 * dpi / kDesignDpi : 0;
        EXPECT_LE(widthOf(text, pixels(points, dpi)) + box, control->pixelRect().width + 1)
            << control->name() << " at " << dpi << ", " << points;
      }
      EXPECT_LE(widthOf("Looking for images: 999999 images in 99999 folders so far", pixels(points, dpi)),
                import.lblProgress.pixelRect().width)
          << "at " << dpi << ", " << points;
    }
  }
  import.setHost(nullptr);
}

TEST_F(DialogFonts, EveryHintFits) {
  for (const int dpi : {96, 120, 144, 192}) {
    for (const float points : {9.0F, 11.0F}) {
      layOut(points, dpi);
      const int room = form.SS_StatusBar.pixelRect().width - 10 * dpi / kDesignDpi;
      for (forms::Control* control : form.controls()) {
        if (!control->onMouseMove) continue;
        control->onMouseMove({});
        const std::string& hint = form.SS_StatusBar.panelText(1);
        EXPECT_LE(widthOf(hint, pixels(points, dpi)), room) << hint << " at " << dpi << ", " << points;
      }
    }
  }
}

TEST_F(DialogFonts, TheUsualFontLeavesTheLayoutAsItIs) {
  layOut(9, 96);
  EXPECT_NEAR(form.layoutScale().horizontal, 1, 0.06);
  EXPECT_FLOAT_EQ(form.layoutScale().vertical, 1.0F);
}

TEST_F(DialogFonts, NoCaptionIsCutAtAnyTextSize) {
  for (const int dpi : {96, 144}) {
    for (const float points : {9.0F, 11.0F, 13.5F, 20.25F}) {
      layOut(points, dpi);
      for (const forms::Control* control : form.controls()) {
        std::string text;
        if (const auto* label = dynamic_cast<const forms::Label*>(control)) text = label->caption();
        if (const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control)) {
          text = captioned->caption();
        }
        std::erase(text, '&');
        EXPECT_LE(widthOf(text, pixels(points, dpi)), control->pixelRect().width + 1)
            << control->name() << " at " << dpi << ", " << points;
      }
    }
  }
}

TEST_F(DialogFonts, NothingOverflowsAtAnyTextSize) {
  layOut(20.25F, 96);
  EXPECT_GT(form.layoutScale().vertical, 2.0F);
  for (const forms::Control* control : form.controls()) {
    if (!control->visible() || control->kind() == forms::ControlKind::TabPage) continue;
    const float width = control->container() ? control->container()->width() : form.clientWidth();
    const float height = control->container() ? control->container()->height() : form.clientHeight();
    EXPECT_LE(control->left() + control->width(), width + 1) << control->name();
    EXPECT_LE(control->top() + control->height(), height + 1) << control->name();
  }
}

}  // namespace
}  // namespace dialog
