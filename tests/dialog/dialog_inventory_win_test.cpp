// The whole inventory of controls, read back from the running dialog.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "support/real_dialog_win.h"

namespace dialog {
namespace {

using support::RealDialog;

struct Row {
  const char* name;
  const char* windowClass;
  const char* text;  // null: what it is called by a screen reader, checked not to be empty
  const char* toolTip;
};

struct DialogInventory : testing::Test {
  support::DialogMachine machine;

  DialogInventory() { machine.writeSettings(); }

  void check(RealDialog& dialog, int tab, std::initializer_list<Row> rows) {
    dialog.showTab(tab);
    const std::map<HWND, std::string> tips = dialog.toolTips();
    for (const Row& row : rows) {
      SCOPED_TRACE(row.name);
      const forms::Control* control = support::ControlNamed(dialog.form(), row.name);
      ASSERT_TRUE(control);
      const HWND window = dialog.windowOf(*control);
      ASSERT_TRUE(window);
      EXPECT_EQ(RealDialog::classOf(window), row.windowClass);
      if (row.text) {
        EXPECT_EQ(RealDialog::textOf(window), row.text);
      } else {
        EXPECT_NE(RealDialog::textOf(window), "");
      }
      const auto tip = tips.find(window);
      EXPECT_EQ(tip == tips.end() ? "" : tip->second, row.toolTip);
    }
  }

  static void checkSlider(RealDialog& dialog, const char* name, int min, int max, int page) {
    SCOPED_TRACE(name);
    const HWND window = dialog.windowOf(*support::ControlNamed(dialog.form(), name));
    EXPECT_EQ(SendMessageW(window, TBM_GETRANGEMIN, 0, 0), min);
    EXPECT_EQ(SendMessageW(window, TBM_GETRANGEMAX, 0, 0), max);
    EXPECT_EQ(SendMessageW(window, TBM_GETPAGESIZE, 0, 0), page);
    EXPECT_EQ(SendMessageW(window, TBM_GETLINESIZE, 0, 0), 1);
    const auto& model = static_cast<const forms::Slider&>(*support::ControlNamed(dialog.form(), name));
    const int between = (max - min - 1) / model.tickFrequency();  // the two ends have ticks of their own
    EXPECT_EQ(SendMessageW(window, TBM_GETNUMTICS, 0, 0), between + 2);
  }

  static void checkCombo(RealDialog& dialog, const char* name, int count, const char* first, const char* last,
                         const char* shown) {
    SCOPED_TRACE(name);
    const HWND window = dialog.windowOf(*support::ControlNamed(dialog.form(), name));
    ASSERT_EQ(SendMessageW(window, CB_GETCOUNT, 0, 0), count);
    char text[16] = {};
    SendMessageA(window, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, first);
    SendMessageA(window, CB_GETLBTEXT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, last);
    EXPECT_EQ(RealDialog::textOf(window), shown);
  }
};

constexpr const char* kButton = "Button";
constexpr const char* kSlider = "msctls_trackbar32";
constexpr const char* kPicture = "LumoraPicture";

TEST_F(DialogInventory, EveryControlIsARealWindowWithItsTexts) {
  RealDialog dialog(machine);
  ASSERT_TRUE(dialog.isOpen());
  EXPECT_EQ(RealDialog::textOf(dialog.window()), " Lumora Screen Saver");
  check(dialog, 0,
        {{"List1", "ListBox", nullptr, "Loaded images"},
         {"photo1", kPicture, nullptr, "Selected image"},
         {"p_caption", "Edit", "", "Caption of image"},
         {"caption_clear", kButton, "C&lear", "Clear caption"},
         {"EnlargeCommand", kButton, "&Enlarge", "View image at its actual size"},
         {"add", kButton, "&Add...", "Add image"},
         {"remove", kButton, "&Remove", "Remove image"},
         {"RemoveAll", kButton, "Remove All", "Remove all images"},
         {"up", kButton, "Move image up", "Move image up"},
         {"down", kButton, "Move image down", "Move image down"},
         {"FolderCommand", kButton, "Fol&der...", "Add images from a folder"},
         {"Text3", "Edit", "Total: 0", "Total of images"},
         {"ImagePosition", "Edit", "", "Position of image"},
         {"Label5(1)", "Static", "Loaded Image(s)", ""},
         {"Label5(2)", "Static", "Image Caption", ""},
         {"MoreCommand", kButton, "&More...", "More options"},
         {"Ok", kButton, "&OK", "Save changes"},
         {"Cancel", kButton, "&Cancel", "Cancel changes"}});
  check(dialog, 1,
        {{"Frame1", kButton, "Change Image", ""},
         {"aChange", kButton, "&After...", "Change image "},
         {"nChange", kButton, "&Never", "Never change image"},
         {"Text2", "Edit", "30", "Time interval (seconds)"},
         {"changeVScroll1", "ScrollBar", nullptr, ""},
         {"Label3", "Static", "Seconds", ""},
         {"Random_select", kButton, "Random Order", "Display images in random order"},
         {"placement", kButton, "Image Movement", ""},
         {"pCenter", kButton, "&Center", "Do not float image"},
         {"pRandom", kButton, "&Float", "Float image"},
         {"floatSlider", kSlider, nullptr, ""},
         {"Label11", "Static", "Slow", ""},
         {"Label7", "Static", "Fast", ""},
         {"Label5(0)", "Static", "Float Speed", ""}});
  checkSlider(dialog, "floatSlider", 0, 5, 5);
  check(dialog, 2,
        {{"backgroundDesktop", kButton, "Desktop ", "Display desktop as background"},
         {"backgroundColor", kButton, "Solid Color", "Display background color"},
         {"backgroundCustomImage", kButton, "Custom  Image", "Display image as background"},
         {"backgroundColorGradient", kButton, "Gradient Color", "Display gradient background color"},
         {"frameBackgroundColor", kButton, "Solid Color", ""},
         {"Picture1", kPicture, nullptr, "Background color"},
         {"backColorClick", kButton, "&Select Color...", "Select background color"},
         {"frameCustomImage", kButton, "Custom Image", ""},
         {"backgroundImageFile", "Edit", "", "Background image"},
         {"addBackImg", kButton, "&Load...", "Load background image"},
         {"removeBackImg", kButton, "Remove", "Remove background image"},
         {"CenterOption", kButton, "Center", "Center background image"},
         {"FullScreenOption", kButton, "Full Screen", "Display background image full screen"},
         {"TileOption", kButton, "Tile", "Tile background image"},
         {"Image1", kPicture, nullptr, ""},
         {"frameColorGradient", kButton, "Gradient Color", ""},
         {"redSlider", kSlider, nullptr, "Dither red"},
         {"greenSlider", kSlider, nullptr, "Dither green"},
         {"blueSlider", kSlider, nullptr, "Dither blue"},
         {"redPicture", kPicture, nullptr, ""},
         {"greenPicture", kPicture, nullptr, ""},
         {"bluePicture", kPicture, nullptr, ""},
         {"GradientPicture", kPicture, nullptr, "Gradient background color"}});
  for (const char* name : {"redSlider", "greenSlider", "blueSlider"}) checkSlider(dialog, name, 0, 255, 1);
  check(dialog, 3,
        {{"Frame5", kButton, "Mouse Sensitivity", ""},
         {"MouseSensitiveSlider", kSlider, nullptr, "Mouse sensitivity"},
         {"Label8", "Static", "Slow", ""},
         {"Label9", "Static", "Quick", ""},
         {"defaultMouseSensitivity", kButton, "Default", "Default mouse sensitivity"}});
  checkSlider(dialog, "MouseSensitiveSlider", 1, 30, 5);
  check(dialog, 4,
        {{"Frame6", kButton, "Image Size", ""},
         {"Label13", "Static", "Display Images less than", ""},
         {"PercentSlider", kSlider, nullptr, ""},
         {"percentLabel", "Static", "45%", ""},
         {"Label12", "Static", "of Monitor Screen", ""},
         {"Label15", "Static", "Min", ""},
         {"Label14", "Static", "Max", ""}});
  checkSlider(dialog, "PercentSlider", 10, 100, 5);
  check(dialog, 5,
        {{"Frame4", kButton, "Image Transition Effects", ""},
         {"Standard", kButton, "Standard", ""},
         {"LWipe", kButton, "Left Wipe", ""},
         {"RWipe", kButton, "Right Wipe", ""},
         {"RLWipe", kButton, "Right and Left Wipe", ""},
         {"UDWipe", kButton, "Up and Down Wipe", ""},
         {"CenterWipe", kButton, "Center Wipe", ""},
         {"HorizontalBlinds", kButton, "Horizontal Blinds", ""},
         {"VerticalBlinds", kButton, "Vertical Blinds", ""},
         {"Fade", kButton, "Fade", ""}});
  check(dialog, 6,
        {{"Frame3", kButton, "Scrolling Speed", ""},
         {"scrollOption", kButton, "Scrolling ", "Scrolling caption"},
         {"middleOption", kButton, "Center", "Center caption"},
         {"scrollSlider", kSlider, nullptr, ""},
         {"scrollSlowLabel", "Static", "Slow", ""},
         {"scrollFastLabel", "Static", "Fast", ""},
         {"Frame7", kButton, "Caption Color", ""},
         {"Picture2", kPicture, nullptr, "Font color"},
         {"fontColorLabel", "Static", "Font Color", ""},
         {"font", kButton, "&Font Style", "Font type, color and size"}});
  checkSlider(dialog, "scrollSlider", 100, 300, 5);
  check(dialog, 7,
        {{"Frame2", kButton, "Countdown To Special Date", ""},
         {"noneOption", kButton, "None", "Display Nothing"},
         {"timeOption", kButton, "Time and Date", "Current date and time"},
         {"yearOption", kButton, "Countdown", "Year 2000 countdown"},
         {"monthCombo", "ComboBox", "02", ""},
         {"dayCombo", "ComboBox", "29", ""},
         {"yearCombo", "ComboBox", "2004", ""},
         {"monthLabel", "Static", "Month", ""},
         {"dayLabel", "Static", "Day", ""},
         {"yearLabel", "Static", "Year", ""}});
  checkCombo(dialog, "monthCombo", 12, "01", "12", "02");
  checkCombo(dialog, "dayCombo", 31, "01", "31", "29");
  checkCombo(dialog, "yearCombo", 41, "2000", "2040", "2004");
}

TEST_F(DialogInventory, TheTabsCarryTheirCaptionsOnAtMostTwoRows) {
  RealDialog dialog(machine);
  const HWND tabs = dialog.windowOf(dialog.form().SSTab1);
  EXPECT_EQ(RealDialog::classOf(tabs), "SysTabControl32");
  const char* captions[] = {
      " Loaded Images ", " Image Properties ",  " Background Color ", " Mouse Sensitivity ",
      " Image Size ",    " Image Transitions ", "  Image Caption  ",  " Countdown to Special Date "};
  ASSERT_EQ(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0), 8);
  EXPECT_LE(SendMessageW(tabs, TCM_GETROWCOUNT, 0, 0), 2);
  for (int i = 0; i < 8; ++i) {
    char text[64] = {};
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 64;
    SendMessageA(tabs, TCM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(text, captions[i]);
  }
}

TEST_F(DialogInventory, TheMenusAreThere) {
  RealDialog dialog(machine);
  const HMENU bar = GetMenu(dialog.window());
  ASSERT_EQ(GetMenuItemCount(bar), 3);
  const auto text = [](HMENU menu, UINT at) {
    char caption[64] = {};
    GetMenuStringA(menu, at, caption, 64, MF_BYPOSITION);
    return std::string(caption);
  };
  EXPECT_EQ(text(bar, 0), "&File");
  EXPECT_EQ(text(bar, 1), "&Help");
  EXPECT_EQ(text(bar, 2), "&Websites");
  EXPECT_EQ(text(GetSubMenu(bar, 0), 0), "&Save");
  EXPECT_EQ(text(GetSubMenu(bar, 0), 1), "E&xit Without Saving");
  EXPECT_EQ(text(GetSubMenu(bar, 1), 0), "&Lumora Screen Saver Help");
  EXPECT_EQ(text(GetSubMenu(bar, 1), 1), "A&bout Lumora Screen Saver");
  EXPECT_EQ(GetMenuItemCount(GetSubMenu(bar, 2)), 1);
}

TEST_F(DialogInventory, ThirtyThousandPicturesAreListedAndTheFirstIsChosen) {
  constexpr int kCount = 30000;
  support::DialogMachine other;
  other.set("total", "total", std::to_string(kCount));
  for (int i = 0; i < kCount; ++i) {
    other.set("images", std::to_string(i), "C:\\photos\\a folder\\picture " + std::to_string(i) + ".jpg");
  }
  other.pictures.add("C:\\photos\\a folder\\picture 0.jpg", {40, 30}, base::kWhite);
  other.writeSettings();
  RealDialog dialog(other);
  const HWND list = dialog.windowOf(dialog.form().List1);
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), kCount);
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 0);
}

}  // namespace
}  // namespace dialog
