// What a screen reader, a low screen and a larger text make of the running dialog.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "base/contrast.h"
#include "os/handles_win.h"
#include "support/dialog_machine.h"
#include "support/real_dialog_win.h"

namespace dialog {
namespace {

using support::RealDialog;

struct DialogLook : testing::Test {
  support::DialogMachine machine;

  DialogLook() { machine.writeSettings(); }

  // The name that accessibility tools give a window that is called by the static text before it.
  static std::string readAs(HWND window) {
    const HWND before = GetWindow(window, GW_HWNDPREV);
    return before && RealDialog::classOf(before) == "Static" ? RealDialog::textOf(before) : "";
  }
};

// Lets the system's message font be of another height for a scope.
class MessageFontHeight {
 public:
  explicit MessageFontHeight(int pixels) {
    metrics_.cbSize = sizeof(metrics_);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics_.cbSize, &metrics_, 0);
    NONCLIENTMETRICSW larger = metrics_;
    larger.lfMessageFont.lfHeight = -pixels;
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, larger.cbSize, &larger, 0);
  }
  ~MessageFontHeight() { SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, metrics_.cbSize, &metrics_, 0); }
  MessageFontHeight(const MessageFontHeight&) = delete;
  MessageFontHeight& operator=(const MessageFontHeight&) = delete;

 private:
  NONCLIENTMETRICSW metrics_{};
};

TEST_F(DialogLook, ScreenReadersCallEachFieldWhatItIs) {
  struct Named {
    int tab;
    const char* control;
    const char* name;
  };
  RealDialog dialog(machine);
  for (const Named& named : std::initializer_list<Named>{{0, "ImagePosition", "Position"},
                                                         {0, "Text3", "Total"},
                                                         {0, "p_caption", "Image Caption"},
                                                         {1, "Text2", "Seconds"},
                                                         {1, "changeVScroll1", "Seconds"},
                                                         {1, "floatSlider", "Float Speed"},
                                                         {2, "backgroundImageFile", "Background image"},
                                                         {3, "MouseSensitiveSlider", "Mouse sensitivity"},
                                                         {4, "PercentSlider", "Display Images less than"},
                                                         {6, "scrollSlider", "Scrolling Speed"},
                                                         {7, "monthCombo", "Month"},
                                                         {7, "dayCombo", "Day"},
                                                         {7, "yearCombo", "Year"}}) {
    dialog.showTab(named.tab);
    const HWND window = dialog.windowOf(*support::ControlNamed(dialog.form(), named.control));
    ASSERT_TRUE(window) << named.control;
    EXPECT_EQ(readAs(window), named.name) << named.control;
  }
}

TEST_F(DialogLook, ASecondPanelIsThereWhileItHasATextAndAsWideAsThat) {
  RealDialog dialog(machine);
  const HWND bar = FindWindowExW(dialog.window(), nullptr, STATUSCLASSNAMEW, nullptr);
  dialog.form().SS_StatusBar.setPanelText(2, "");
  EXPECT_EQ(SendMessageW(bar, SB_GETPARTS, 0, 0), 1);
  dialog.form().SS_StatusBar.setPanelText(2, "A short text.");
  int ends[2] = {};
  ASSERT_EQ(SendMessageW(bar, SB_GETPARTS, 2, reinterpret_cast<LPARAM>(ends)), 2);
  RECT client{};
  GetClientRect(bar, &client);
  const int width = static_cast<int>(client.right) - ends[0];
  EXPECT_GT(width, 40);
  EXPECT_LT(width, 160);
  EXPECT_EQ(dialog.statusText(2), "A short text.");
  dialog.form().SS_StatusBar.setPanelText(2, "");
  EXPECT_EQ(SendMessageW(bar, SB_GETPARTS, 0, 0), 1);
}

TEST_F(DialogLook, InALargerFontTheDialogGrowsAndNoPageOverflows) {
  const MessageFontHeight larger(18);
  RealDialog dialog(machine);
  EXPECT_GT(dialog.form().layoutScale().vertical, 1.2F);
  for (int tab = 0; tab < 8; ++tab) {
    dialog.showTab(tab);
    const forms::TabPage& page = dialog.form().SSTab1.page(tab);
    for (const forms::Control* control : dialog.form().controls()) {
      if (control->container() != &page) continue;
      EXPECT_LE(control->left() + control->width(), page.width()) << control->name();
      EXPECT_LE(control->top() + control->height(), page.height()) << control->name();
    }
  }
}

TEST_F(DialogLook, WhatDoesNotFitOnTheScreenIsScrolledToWithTheKeyboard) {
  const MessageFontHeight larger(40);
  RealDialog dialog(machine);
  MONITORINFO screen{};
  screen.cbSize = sizeof(screen);
  GetMonitorInfoW(MonitorFromWindow(dialog.window(), MONITOR_DEFAULTTOPRIMARY), &screen);
  RECT place{};
  GetWindowRect(dialog.window(), &place);
  EXPECT_GE(place.top, screen.rcWork.top) << "its title is within reach";
  EXPECT_LE(place.bottom, screen.rcWork.bottom);
  EXPECT_LE(place.right, screen.rcWork.right);
  const HWND ok = GetDlgItem(dialog.window(), IDOK);
  const auto isInSight = [&](HWND window) {
    RECT at{};
    RECT client{};
    GetWindowRect(window, &at);
    MapWindowPoints(nullptr, dialog.window(), reinterpret_cast<POINT*>(&at), 2);
    GetClientRect(dialog.window(), &client);
    return at.top >= 0 && at.bottom <= client.bottom;
  };
  EXPECT_FALSE(isInSight(ok));
  for (int i = 0; i < 40 && GetFocus() != ok; ++i) dialog.press(VK_TAB);
  ASSERT_EQ(GetFocus(), ok);
  EXPECT_TRUE(isInSight(ok));
  SendMessageW(dialog.window(), WM_VSCROLL, SB_TOP, 0);
  EXPECT_FALSE(isInSight(ok));
  SendMessageW(dialog.window(), WM_VSCROLL, SB_BOTTOM, 0);
  EXPECT_TRUE(isInSight(ok));
}

TEST_F(DialogLook, ALargerFontIsFollowedWhileItIsOpen) {
  RealDialog dialog(machine);
  RECT before{};
  GetWindowRect(dialog.window(), &before);
  {
    const MessageFontHeight larger(18);
    SendMessageW(dialog.window(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
    RECT now{};
    GetWindowRect(dialog.window(), &now);
    EXPECT_GT(now.bottom - now.top, before.bottom - before.top);
  }
  SendMessageW(dialog.window(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
  RECT again{};
  GetWindowRect(dialog.window(), &again);
  EXPECT_EQ(again.bottom - again.top, before.bottom - before.top);
}

TEST_F(DialogLook, TheKeyForHelpAsksForTheHelpWhereverTheKeyboardIs) {
  RealDialog dialog(machine);
  int asked = 0;
  dialog.form().onHelp = [&] { ++asked; };
  dialog.press(VK_F1);
  EXPECT_TRUE(dialog.waitFor([&] { return asked == 1; }));
  dialog.click(dialog.form().p_caption);
  dialog.press(VK_F1);
  EXPECT_TRUE(dialog.waitFor([&] { return asked == 2; }));
}

TEST_F(DialogLook, EnterInTheCaptionGoesOnAndSavesNothing) {
  support::DialogMachine two;
  two.set("total", "total", "2");
  for (const char* number : {"0", "1"}) {
    two.set("images", number, std::string("C:\\") + number + ".gif");
    two.pictures.add(std::string("C:\\") + number + ".gif", {40, 30}, base::kWhite);
  }
  two.writeSettings();
  RealDialog dialog(two);
  dialog.click(dialog.form().p_caption);
  dialog.press(VK_RETURN);
  EXPECT_TRUE(dialog.waitFor([&] { return dialog.form().List1.listIndex() == 1; }));
  dialog.press(VK_RETURN);
  EXPECT_TRUE(dialog.isOpen());
  EXPECT_TRUE(two.files.writes.empty());
}

// Between the tabs and the buttons: a visual style has colours of its own for the pages.
TEST_F(DialogLook, OtherColorsAreFollowedWhileItIsOpen) {
  RealDialog dialog(machine);
  const auto background = [&dialog] {
    UpdateWindow(dialog.window());
    const os::WindowDc dc(dialog.window());
    return GetPixel(dc.get(), 4, 4);
  };
  const int element = COLOR_BTNFACE;
  const COLORREF before = GetSysColor(element);
  const COLORREF black = RGB(0, 0, 0);
  EXPECT_EQ(background(), before);
  SetSysColors(1, &element, &black);
  SendMessageW(dialog.window(), WM_SYSCOLORCHANGE, 0, 0);
  const COLORREF shown = background();
  SetSysColors(1, &element, &before);
  SendMessageW(dialog.window(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_EQ(shown, black);
  EXPECT_EQ(background(), before);
}

// The darkest and the lightest of what a field shows where its text begins.
struct Tones {
  base::PackedColor darkest = base::kWhite;
  base::PackedColor lightest = base::kBlack;
};

Tones TonesOf(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  RECT inside{};
  GetClientRect(window, &inside);
  const os::WindowDc dc(window);
  Tones tones;
  for (int y = inside.bottom / 3; y < inside.bottom * 2 / 3; ++y) {
    for (int x = 6; x < inside.right / 2; ++x) {
      const auto pixel = static_cast<base::PackedColor>(GetPixel(dc.get(), x, y));
      if (base::GreenOf(pixel) < base::GreenOf(tones.darkest)) tones.darkest = pixel;
      if (base::GreenOf(pixel) > base::GreenOf(tones.lightest)) tones.lightest = pixel;
    }
  }
  return tones;
}

// Text and field are both white there, by the system's own colours.
TEST_F(DialogLook, InAThemeOfHighContrastEveryFieldCanBeRead) {
  support::DialogMachine withoutCountdown;  // whose fields have the colour of what is not in force
  withoutCountdown.set("image", "timeDisplay", "0");
  withoutCountdown.writeSettings();
  RealDialog dialog(withoutCountdown);
  const int elements[] = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_3DLIGHT};
  COLORREF before[3];
  for (int i = 0; i < 3; ++i) before[i] = GetSysColor(elements[i]);
  const COLORREF contrast[] = {RGB(0, 0, 0), RGB(255, 255, 255), RGB(255, 255, 255)};
  SetSysColors(3, elements, contrast);
  SendMessageW(dialog.window(), WM_SYSCOLORCHANGE, 0, 0);
  const auto contrastOf = [&dialog](const forms::Control& control) {
    const Tones tones = TonesOf(dialog.windowOf(control));
    return base::ContrastRatio(tones.darkest, tones.lightest);
  };
  const double total = contrastOf(dialog.form().Text3);
  dialog.showTab(7);
  const double month = contrastOf(dialog.form().monthCombo);
  SetSysColors(3, elements, before);
  SendMessageW(dialog.window(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_GE(total, base::kReadableContrast);
  EXPECT_GE(month, base::kReadableContrast);
}

}  // namespace
}  // namespace dialog
