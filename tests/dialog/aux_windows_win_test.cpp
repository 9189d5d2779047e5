// The windows that the dialog opens, as real windows under a person's hands.
#include <windows.h>

#include <psapi.h>

#include <gtest/gtest.h>

#include "os/utf16_win.h"
#include "support/real_dialog_win.h"
#include "support/temporary_folder_win.h"

namespace dialog {
namespace {

using support::RealDialog;

struct AuxWindows : testing::Test {
  support::DialogMachine machine;
  std::unique_ptr<RealDialog> dialog;

  // Opens the dialog with one picture of that size.
  void open(base::PixelSize size) {
    machine.set("total", "total", "1");
    machine.set("images", "0", "C:\\p.gif");
    machine.pictures.add("C:\\p.gif", size, base::Rgb(200, 100, 50));
    machine.writeSettings();
    dialog = std::make_unique<RealDialog>(machine);
  }
  auxwin::ImageView& viewer() { return dialog->program().dialog().viewer; }
  HWND viewerWindow() { return dialog->program().windows().windowOf(viewer()); }
  bool viewerOpens() {
    return dialog->waitFor([this] { return viewerWindow() && GetForegroundWindow() == viewerWindow(); });
  }
  bool viewerCloses() {
    return dialog->waitFor([this] { return viewerWindow() == nullptr; });
  }
  void mouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
    letPass();
  }
  // Runs what is on its way to the program's queue.
  void letPass() {
    bool over = false;
    const auto timer = dialog->loop().startTimer(100, [&] { over = true; });
    dialog->waitFor([&] { return over; });
    dialog->loop().stopTimer(timer);
  }
};

TEST_F(AuxWindows, TheDoubleClickThatOpensTheViewerDoesNotCloseItAgain) {
  open({1000, 700});
  dialog->click(dialog->form().photo1, 20, 60);
  dialog->click(dialog->form().photo1, 20, 60);
  ASSERT_TRUE(viewerOpens());
  RECT place{};
  GetWindowRect(viewerWindow(), &place);
  POINT pointer{};
  GetCursorPos(&pointer);
  EXPECT_TRUE(PtInRect(&place, pointer)) << "the button goes up over the viewer";
  letPass();
  EXPECT_NE(viewerWindow(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(dialog->window())) << "the dialog stays usable";
  dialog->press(VK_ESCAPE);
  EXPECT_TRUE(viewerCloses());
  EXPECT_TRUE(dialog->isOpen());
}

TEST_F(AuxWindows, TheViewerHasItsSizeInTwipsAndThePictureItsActualSize) {
  open({400, 300});
  dialog->click(dialog->form().EnlargeCommand);
  ASSERT_TRUE(viewerOpens());
  RECT place{};
  GetWindowRect(viewerWindow(), &place);
  EXPECT_EQ(place.right - place.left, (400 * 15 + 120) / 15);
  EXPECT_EQ(place.bottom - place.top, (300 * 15 + 405) / 15);
  RECT picture{};
  GetWindowRect(GetWindow(viewerWindow(), GW_CHILD), &picture);
  EXPECT_EQ(picture.right - picture.left, 400);
  EXPECT_EQ(picture.bottom - picture.top, 300);
}

TEST_F(AuxWindows, APictureLargerThanTheScreenIsPulledAboutAndClickedAway) {
  open({3000, 2000});
  dialog->click(dialog->form().EnlargeCommand);
  ASSERT_TRUE(viewerOpens());
  RECT place{};
  GetWindowRect(viewerWindow(), &place);
  EXPECT_EQ(place.right - place.left, 3008);
  EXPECT_EQ(place.bottom - place.top, 2027);
  SetCursorPos(500, 500);
  letPass();
  mouse(MOUSEEVENTF_LEFTDOWN);
  SetCursorPos(400, 350);
  EXPECT_TRUE(dialog->waitFor([this] { return viewer().Picture1.left() == -1500.0F; }));
  EXPECT_EQ(viewer().Picture1.top(), -2250.0F);
  mouse(MOUSEEVENTF_LEFTUP);
  EXPECT_NE(viewerWindow(), nullptr) << "the end of pulling is no click";
  mouse(MOUSEEVENTF_LEFTDOWN);
  mouse(MOUSEEVENTF_LEFTUP);
  EXPECT_TRUE(viewerCloses());
}

TEST_F(AuxWindows, TheViewerGoesWithTheDialog) {
  open({400, 300});
  dialog->click(dialog->form().EnlargeCommand);
  ASSERT_TRUE(viewerOpens());
  const HWND window = viewerWindow();
  dialog->form().Cancel.userClicked();
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(dialog->loop().isQuitting());
}

TEST_F(AuxWindows, AFolderIsImportedByTheDefaultButton) {
  machine.files.listed["C:\\"] = {"b.jpg", "a.gif", "notes.txt"};  // where the list's picture is
  open({400, 300});
  bool usable = true;
  // Runs inside the import's own loop.
  const auto timer = dialog->loop().startTimer(50, [&] {
    const HWND import = FindWindowW(nullptr, L"Add Images From a Folder");
    if (!import || GetForegroundWindow() != import) return;
    usable = IsWindowEnabled(dialog->window());
    PostMessageW(import, WM_COMMAND, IDOK, 0);
  });
  const forms::ListBox& list = dialog->form().List1;
  for (const char* name : {"b.jpg", "a.gif"}) {
    machine.pictures.add(std::string("C:\\") + name, {4, 3}, base::kBlack);
  }
  dialog->click(dialog->form().FolderCommand);
  EXPECT_TRUE(dialog->waitFor([&] { return list.listCount() == 3; }));
  dialog->loop().stopTimer(timer);
  EXPECT_FALSE(usable) << "modal";
  EXPECT_TRUE(list.item(1).ends_with("\\a.gif")) << list.item(1);
  EXPECT_TRUE(list.item(2).ends_with("\\b.jpg"));
  EXPECT_EQ(list.listIndex(), 2);
  EXPECT_EQ(SendMessageW(dialog->windowOf(list), LB_GETCOUNT, 0, 0), 3);
  EXPECT_EQ(dialog->form().Text3.text(), "3");
  EXPECT_TRUE(IsWindowEnabled(dialog->window()));
}

// The folders are the system's own here, and the search runs on a thread.
TEST_F(AuxWindows, AFolderIsImportedWithWhatLiesBelowItByTheKeyboard) {
  const support::TemporaryFolder place;
  const std::string deep = place.path() + "\\deep";
  CreateDirectoryW(os::ToWide(deep).c_str(), nullptr);
  for (const std::string& path : {place.path() + "\\b.jpg", deep + "\\a.gif", deep + "\\notes.txt"}) {
    support::WriteFileAt(path);
  }
  machine.files.gone = {"C:",
                        "C:\\"};  // where the list's picture is; so the import starts at the user's pictures
  machine.files.pictures = place.path();
  machine.pictures.add(deep + "\\a.gif", {4, 3}, base::kBlack);
  open({400, 300});
  bool pressed = false;
  const auto timer = dialog->loop().startTimer(50, [&] {
    const HWND import = FindWindowW(nullptr, L"Add Images From a Folder");
    if (!import || GetForegroundWindow() != import || pressed) return;
    pressed = true;
    dialog->press('S', VK_MENU);
    dialog->press(VK_RETURN);
  });
  dialog->click(dialog->form().FolderCommand);
  const forms::ListBox& list = dialog->form().List1;
  EXPECT_TRUE(dialog->waitFor([&] { return list.listCount() == 3; }));
  dialog->loop().stopTimer(timer);
  EXPECT_EQ(list.item(1), place.path() + "\\b.jpg");
  EXPECT_EQ(list.item(2), deep + "\\a.gif");
  EXPECT_TRUE(IsWindowEnabled(dialog->window()));
}

TEST_F(AuxWindows, TheViewerHoldsThePixelsOnce) {
  constexpr base::PixelSize kSize{6000, 4000};
  constexpr double kPictureBytes = 6000.0 * 4000 * 4;
  const auto committed = [] {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PagefileUsage);
  };
  open(kSize);
  const double before = committed();
  dialog->click(dialog->form().EnlargeCommand);
  ASSERT_TRUE(viewerOpens());
  UpdateWindow(viewerWindow());
  letPass();
  EXPECT_LT(committed() - before, 1.5 * kPictureBytes);
}

TEST_F(AuxWindows, WhatIsOpenOverTheDialogGoesWithIt) {
  open({400, 300});
  bool wasOpen = false;
  const auto timer = dialog->loop().startTimer(50, [&] {
    if (!dialog->program().windows().windowOf(dialog->program().dialog().about)) return;
    wasOpen = true;
    SendMessageW(dialog->window(), WM_CLOSE, 0, 0);
  });
  dialog->program().dialog().AboutLumora_Click();
  dialog->loop().stopTimer(timer);
  EXPECT_TRUE(wasOpen);
  EXPECT_FALSE(dialog->program().dialog().about.host()) << "its form knows that the window has gone";
  EXPECT_TRUE(dialog->loop().isQuitting());
}

}  // namespace
}  // namespace dialog
