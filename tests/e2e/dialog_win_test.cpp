#include <gtest/gtest.h>

#include <string>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"

namespace {

using e2e::ChildOf;
using e2e::ClickOn;
using e2e::DialogOf;

// Goes on through the tabs until a control is there, and clicks it.
testing::AssertionResult FindAndClick(HWND dialog, const wchar_t* className, const wchar_t* text) {
  if (!e2e::WaitForKeyboard(dialog)) return testing::AssertionFailure() << "something is over the dialog";
  const HWND control = e2e::FindOnTabs(dialog, className, text, e2e::NextTab);
  if (!control) return testing::AssertionFailure() << os::FromWide(text) << " is on no tab";
  ClickOn(control);
  return testing::AssertionSuccess();
}

HWND WindowTitled(const wchar_t* title) {
  HWND window = nullptr;
  e2e::WaitFor([&] {
    window = FindWindowW(nullptr, title);
    return window != nullptr && IsWindowVisible(window);
  });
  return window;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::string ReadFileText(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  std::string text(static_cast<std::size_t>(GetFileSize(file, nullptr)), '\0');
  DWORD got = 0;
  ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &got, nullptr);
  CloseHandle(file);
  return text;
}

// The installed program folder, opened in the dialog as a new user would.
class DialogTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const wchar_t* name : {L"zbfaone.ini", L"image1.gif", L"image2.gif"}) {
      ASSERT_TRUE(CopyFileW((e2e::builtFolder + L"\\" + name).c_str(), (folder.path() + L"\\" + name).c_str(),
                            FALSE));
    }
    installed = ReadFileText(folder.settingsFile());
  }

  e2e::ProgramFolder folder{L"dialog"};
  std::string installed;
};

TEST_F(DialogTest, ACaptionTypedByHandIsSavedAndNothingElseIs) {
  e2e::RunningProgram program(folder.program(), L"/c:0");
  const HWND dialog = DialogOf(program);
  ASSERT_NE(dialog, nullptr);
  HWND caption = nullptr;
  ASSERT_TRUE(
      e2e::WaitFor([&] { return (caption = ChildOf(dialog, L"Edit", L"Mountains at dusk")) != nullptr; }));
  ASSERT_TRUE(e2e::EnterField(dialog, caption));
  e2e::PressKey(VK_END);
  e2e::PressKey('1');
  ASSERT_TRUE(e2e::WaitFor([&] { return ChildOf(dialog, L"Edit", L"Mountains at dusk1") != nullptr; }));
  const HWND ok = ChildOf(dialog, L"Button", L"&OK");
  ASSERT_NE(ok, nullptr);
  ClickOn(ok);
  ASSERT_TRUE(program.waitForEnd());

  const std::string path = os::FromWide(folder.path());
  std::string expected = Replaced(installed, "samples=1", "samples=0");
  expected = Replaced(expected, "[images]\r\n",
                      "[images]\r\n0=" + path + "\\image1.gif\r\n1=" + path + "\\image2.gif\r\n2=\r\n");
  expected = Replaced(expected, "0=Mountains at dusk\r\n", "0=Mountains at dusk1\r\n");
  EXPECT_EQ(ReadFileText(folder.settingsFile()), expected);

  // The show has the caption, and the dialog shows everything as it was left.
  e2e::RunningProgram again(folder.program(), L"/C");
  const HWND reopened = DialogOf(again);
  ASSERT_NE(reopened, nullptr);
  EXPECT_TRUE(e2e::WaitFor([&] { return ChildOf(reopened, L"Edit", L"Mountains at dusk1") != nullptr; }));
  EXPECT_NE(ChildOf(reopened, L"Edit", L"Total: 2"), nullptr);
}

TEST_F(DialogTest, PicturesAddedMovedAndOptionsChangedOnEveryTabAreInTheFile) {
  // One picture to be chosen by name, two in the folder where the user keeps pictures.
  const std::string single = folder.writeBitmap("single.bmp", {30, 20}, base::Rgb(1, 2, 3));
  e2e::ProgramFolder album(L"album");
  const std::string first = album.writeBitmap("a.bmp", {30, 20}, base::Rgb(1, 2, 3));
  const std::string second = album.writeBitmap("b.bmp", {30, 20}, base::Rgb(1, 2, 3));
  const e2e::PicturesFolder pictures(album.path());
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = DialogOf(program);
  ASSERT_NE(dialog, nullptr);

  ASSERT_TRUE(FindAndClick(dialog, L"Button", L"Fol&der..."));
  HWND addAll = nullptr;
  ASSERT_TRUE(e2e::WaitFor([&] {
    HWND window = nullptr;
    while (!addAll && (window = FindWindowExW(nullptr, window, nullptr, nullptr)) != nullptr) {
      DWORD owner = 0;
      GetWindowThreadProcessId(window, &owner);
      if (owner == program.processId()) addAll = ChildOf(window, L"Button", L"&Add All Images");
    }
    return addAll != nullptr;
  }));
  ClickOn(addAll);
  ASSERT_TRUE(e2e::WaitFor([&] { return ChildOf(dialog, L"Edit", L"Position: 4") != nullptr; }));

  ASSERT_TRUE(FindAndClick(dialog, L"Button", L"&Add..."));
  const HWND chooser = WindowTitled(L"Select a file to open");
  ASSERT_NE(chooser, nullptr);
  ASSERT_TRUE(e2e::WaitForKeyboard(chooser));
  e2e::TypeText(os::ToWide(single));
  e2e::PressKey(VK_RETURN);
  ASSERT_TRUE(e2e::WaitFor([&] { return ChildOf(dialog, L"Edit", L"Total: 5") != nullptr; }));

  ASSERT_TRUE(FindAndClick(dialog, L"Button", L"Move image up"));
  ASSERT_TRUE(e2e::WaitFor([&] { return ChildOf(dialog, L"Edit", L"Position: 4") != nullptr; }));

  for (const wchar_t* option : {L"&Float", L"Desktop ", L"Default", L"Fade", L"Scrolling ", L"Countdown"}) {
    ASSERT_TRUE(FindAndClick(dialog, L"Button", option)) << os::FromWide(option);
  }
  ASSERT_TRUE(FindAndClick(dialog, L"Button", L"&OK"));
  ASSERT_TRUE(program.waitForEnd());

  const std::string path = os::FromWide(folder.path());
  std::string expected = Replaced(installed, "samples=1", "samples=0");
  expected = Replaced(expected, "[images]\r\n",
                      "[images]\r\n0=" + path + "\\image1.gif\r\n1=" + path + "\\image2.gif\r\n2=" + first +
                          "\r\n3=" + single + "\r\n4=" + second + "\r\n5=\r\n");
  expected = Replaced(expected, "total=2", "total=5");
  expected = Replaced(expected, "1=Night sky over the lake\r\n2=\r\n",
                      "1=Night sky over the lake\r\n2=\r\n3=\r\n4=\r\n5=\r\n");
  expected = Replaced(expected, "picRandom=cent", "picRandom=rand");
  expected = Replaced(expected, "backEffect=3", "backEffect=1");
  expected = Replaced(expected, "bFade=1", "bFade=0");
  expected = Replaced(expected, "scroll=1", "scroll=0");
  expected = Replaced(expected, "timeDisplay=1", "timeDisplay=2");
  EXPECT_EQ(ReadFileText(folder.settingsFile()), expected);

  // The show runs on what was saved.
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST_F(DialogTest, CancelWritesNothing) {
  e2e::RunningProgram first(folder.program(), L"/C");
  HWND dialog = DialogOf(first);
  ASSERT_NE(dialog, nullptr);
  // The first run has put the samples in; from here on nothing may change.
  const std::string before = ReadFileText(folder.settingsFile());
  HWND caption = nullptr;
  ASSERT_TRUE(
      e2e::WaitFor([&] { return (caption = ChildOf(dialog, L"Edit", L"Mountains at dusk")) != nullptr; }));
  ASSERT_TRUE(e2e::EnterField(dialog, caption));
  e2e::PressKey('1');
  const HWND cancel = ChildOf(dialog, L"Button", L"&Cancel");
  ASSERT_NE(cancel, nullptr);
  ClickOn(cancel);
  ASSERT_TRUE(first.waitForEnd());
  EXPECT_EQ(ReadFileText(folder.settingsFile()), before);
}

}  // namespace
