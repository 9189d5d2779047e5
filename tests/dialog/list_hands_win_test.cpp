// The picture list under a person's hands: several entries, dragging, tool-tips, missing pictures.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "os/dib_win.h"
#include "os/utf16_win.h"
#include "support/real_dialog_win.h"
#include "support/temporary_folder_win.h"

namespace dialog {
namespace {

using support::RealDialog;
using Rows = std::vector<int>;

struct ListHands : testing::Test {
  support::DialogMachine machine;
  support::TemporaryFolder folder;
  std::unique_ptr<RealDialog> dialog;

  // Opens the dialog on that many pictures, 0.gif and so on, of which all but the second are on the disk.
  void open(int count) {
    machine.set("total", "total", std::to_string(count));
    for (int i = 0; i < count; ++i) {
      machine.set("images", std::to_string(i), pathOf(i));
      machine.pictures.add(pathOf(i), {40, 30}, base::kWhite);
      if (i == 1 || i > 20) continue;
      support::WriteFileAt(pathOf(i));
    }
    machine.writeSettings();
    dialog = std::make_unique<RealDialog>(machine);
  }
  std::string pathOf(int i) const { return folder.path() + "\\" + std::to_string(i) + ".gif"; }

  forms::ListBox& list() { return dialog->form().List1; }
  HWND window() { return dialog->windowOf(list()); }
  int lineHeight() { return static_cast<int>(SendMessageW(window(), LB_GETITEMHEIGHT, 0, 0)); }
  int middleOf(int row) { return 2 + lineHeight() * row + lineHeight() / 2; }

  void key(WORD code, bool down) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof(input));
    settle();
  }
  void button(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
    settle();
  }
  // Runs what is on its way to the program's queue.
  void settle() {
    bool over = false;
    const auto timer = dialog->loop().startTimer(40, [&] { over = true; });
    dialog->waitFor([&] { return over; });
    dialog->loop().stopTimer(timer);
  }
  // The key goes down last: a display server that is told to move the pointer reports which keys are really
  // down.
  void click(int row, WORD with = 0) {
    dialog->pointAt(list(), 40, middleOf(row));
    settle();
    if (with) key(with, true);
    button(MOUSEEVENTF_LEFTDOWN);
    button(MOUSEEVENTF_LEFTUP);
    if (with) key(with, false);
  }
  void pullTo(int row, int y) {
    dialog->pointAt(list(), 40, middleOf(row));
    button(MOUSEEVENTF_LEFTDOWN);
    dialog->pointAt(list(), 40, (middleOf(row) + y) / 2);
    dialog->pointAt(list(), 40, y);
    settle();
  }
  bool becomes(const Rows& rows) {
    return dialog->waitFor([&] { return list().chosen() == rows; });
  }
  // The numbers of the pictures in the order of the model; "?" where the window has others.
  std::string order() {
    std::string numbers;
    for (int i = 0; i < list().listCount(); ++i) {
      wchar_t text[512] = {};
      SendMessageW(window(), LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
      if (os::FromWide(text) != list().item(i)) return "?";
      const std::string name = list().item(i).substr(folder.path().size() + 1);
      numbers += name.substr(0, name.find('.')) + " ";
    }
    return SendMessageW(window(), LB_GETCOUNT, 0, 0) == list().listCount() ? numbers : "?";
  }
};

TEST_F(ListHands, ShiftAndControlChooseSeveral) {
  open(6);
  click(1);
  EXPECT_TRUE(becomes({1}));
  click(3, VK_SHIFT);
  EXPECT_TRUE(becomes({1, 2, 3}));
  click(5, VK_CONTROL);
  EXPECT_TRUE(becomes({1, 2, 3, 5}));
  click(2, VK_CONTROL);
  EXPECT_TRUE(becomes({1, 3, 5}));
  EXPECT_EQ(SendMessageW(window(), LB_GETSELCOUNT, 0, 0), 3) << "whoever asks the window hears the same";
  EXPECT_EQ(SendMessageW(window(), LB_GETSEL, 3, 0), 1);
  EXPECT_EQ(SendMessageW(window(), LB_GETSEL, 2, 0), 0);
  int rows[8] = {};
  EXPECT_EQ(SendMessageW(window(), LB_GETSELITEMS, 8, reinterpret_cast<LPARAM>(rows)), 3);
  EXPECT_EQ(rows[2], 5);
  click(4);
  EXPECT_TRUE(becomes({4}));
}

TEST_F(ListHands, KeysChooseSeveralToo) {
  open(6);
  click(0);
  key(VK_SHIFT, true);
  dialog->press(VK_DOWN);
  dialog->press(VK_DOWN);
  key(VK_SHIFT, false);
  EXPECT_TRUE(becomes({0, 1, 2}));
  key(VK_CONTROL, true);
  dialog->press(VK_DOWN);
  dialog->press(VK_DOWN);
  dialog->press(VK_SPACE);
  key(VK_CONTROL, false);
  EXPECT_TRUE(becomes({0, 1, 2, 4}));
  EXPECT_EQ(list().listIndex(), 4);
  dialog->press(VK_UP);
  EXPECT_TRUE(becomes({3}));
}

TEST_F(ListHands, AllAreDeletedAndComeBack) {
  open(6);
  click(2);
  dialog->press('A', VK_CONTROL);
  EXPECT_TRUE(becomes({0, 1, 2, 3, 4, 5}));
  dialog->press(VK_DELETE);
  EXPECT_TRUE(dialog->waitFor([&] { return list().listCount() == 0; }));
  EXPECT_EQ(order(), "");
  dialog->press('Z', VK_CONTROL);
  EXPECT_TRUE(dialog->waitFor([&] { return list().listCount() == 6; }));
  EXPECT_EQ(order(), "0 1 2 3 4 5 ");
  EXPECT_TRUE(becomes({0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(dialog->focusedName(), "List1");
}

TEST_F(ListHands, F2GoesToTheCaptionAndControlZThereIsTheBoxsOwn) {
  open(3);
  click(2);
  dialog->press(VK_F2);
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->focusedName() == "p_caption"; }));
  dialog->press('7');
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->form().photo_caption.item(2) == "7"; }));
  dialog->press('Z', VK_CONTROL);
  settle();
  EXPECT_EQ(list().listCount(), 3);
}

TEST_F(ListHands, OneEntryIsPulledToAnotherPlace) {
  open(6);
  pullTo(1, middleOf(4) + lineHeight() / 2 - 2);
  button(MOUSEEVENTF_LEFTUP);
  EXPECT_TRUE(dialog->waitFor([&] { return order() == "0 2 3 4 1 5 "; })) << order();
  EXPECT_TRUE(becomes({4}));
}

TEST_F(ListHands, SeveralArePulledTogetherAndEscapeLeavesThem) {
  open(6);
  click(1);
  click(3, VK_CONTROL);
  pullTo(3, 2);
  button(MOUSEEVENTF_LEFTUP);
  EXPECT_TRUE(dialog->waitFor([&] { return order() == "1 3 0 2 4 5 "; })) << order();
  EXPECT_TRUE(becomes({0, 1}));
  pullTo(0, middleOf(5) + lineHeight());
  dialog->press(VK_ESCAPE);
  button(MOUSEEVENTF_LEFTUP);
  settle();
  EXPECT_TRUE(dialog->isOpen()) << "Escape was the drag's";
  EXPECT_EQ(order(), "1 3 0 2 4 5 ");
  EXPECT_EQ(list().chosen(), (Rows{0, 1}));
}

TEST_F(ListHands, AClickOnOneOfSeveralChoosesItAlone) {
  open(6);
  click(1);
  click(4, VK_SHIFT);
  click(2);
  EXPECT_TRUE(becomes({2}));
}

TEST_F(ListHands, TheListScrollsUnderWhatIsPulled) {
  open(60);
  pullTo(0, list().pixelRect().height + lineHeight());
  EXPECT_TRUE(dialog->waitFor([&] { return SendMessageW(window(), LB_GETTOPINDEX, 0, 0) > 20; }));
  button(MOUSEEVENTF_LEFTUP);
  EXPECT_TRUE(dialog->waitFor([&] { return list().listIndex() > 20; }));
  EXPECT_EQ(list().item(0), pathOf(1));
}

TEST_F(ListHands, ADoubleClickOpensTheViewerAsEver) {
  open(3);
  click(1);
  dialog->click(list(), 40, middleOf(1));
  EXPECT_TRUE(dialog->waitFor(
      [&] { return dialog->program().windows().windowOf(dialog->program().dialog().viewer) != nullptr; }));
}

TEST_F(ListHands, TheEntryUnderThePointerTellsItsPathAndWhetherItIsThere) {
  open(3);
  dialog->pointAt(list(), 40, middleOf(2));
  const HWND box = window();
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->toolTips()[box] == pathOf(2); }));
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->statusText(2) == "Images in gray cannot be found."; }));
  dialog->pointAt(list(), 40, middleOf(1));
  EXPECT_TRUE(dialog->waitFor(
      [&] { return dialog->toolTips()[box] == pathOf(1) + "\r\nThis image cannot be found."; }));
  dialog->pointAt(list(), 40, middleOf(6));
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->toolTips()[box] == "Loaded images"; }));
}

TEST_F(ListHands, WhatIsMissingIsGrayInTheList) {
  open(3);
  EXPECT_TRUE(dialog->waitFor([&] { return !dialog->statusText(2).empty(); }));
  UpdateWindow(window());
  const int line = lineHeight();
  const base::PixelSize looked{200, line * 3};
  const os::Dib copy(looked);
  const HDC dc = GetDC(window());
  BitBlt(copy.dc(), 0, 0, looked.width, looked.height, dc, 0, 0, SRCCOPY);
  ReleaseDC(window(), dc);
  // The darkest pixel of a line that is not chosen.
  const auto darkest = [&](int row) {
    int least = 255;
    for (int x = 2; x < looked.width; ++x) {
      for (int y = line * row; y < line * (row + 1); ++y) {
        least = std::min(least, static_cast<int>(GetGValue(GetPixel(copy.dc(), x, y))));
      }
    }
    return least;
  };
  EXPECT_LT(darkest(2), 60);
  EXPECT_GT(darkest(1), darkest(2) + 40);
}

}  // namespace
}  // namespace dialog
