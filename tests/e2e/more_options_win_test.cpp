// More options from the first press of a button to the file, by the mouse alone and by the keyboard alone.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "settings/ini_document.h"
#include "settings/load_settings.h"
#include "support/windows_1252.h"

namespace {

using e2e::ChildOf;
using e2e::ClickOn;
using e2e::FocusIn;
using e2e::WaitForKeyboard;

HWND WaitForWindow(const wchar_t* title) {
  HWND window = nullptr;
  e2e::WaitFor([&] {
    window = FindWindowW(nullptr, title);
    return window != nullptr && IsWindowVisible(window);
  });
  return window;
}

bool WaitForNoWindow(const wchar_t* title, int limitMs = 15000) {
  return e2e::WaitFor(
      [&] {
        const HWND window = FindWindowW(nullptr, title);
        return window == nullptr || !IsWindowVisible(window);
      },
      limitMs);
}

// The first visible window of a class inside another one; null when there is none.
HWND VisibleChild(HWND parent, const wchar_t* className) {
  struct Search {
    const wchar_t* className;
    HWND found;
  } search{className, nullptr};
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM data) CALLBACK -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(data);
        wchar_t name[64] = {};
        GetClassNameW(window, name, 64);
        if (!IsWindowVisible(window) || std::wstring(name) != wanted.className) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool WaitForEditInside(HWND window) {
  return e2e::WaitFor([&] {
    wchar_t name[16] = {};
    const HWND focus = FocusIn(window);
    return focus != nullptr && IsChild(window, focus) && GetClassNameW(focus, name, 16) > 0 &&
           std::wstring(name) == L"Edit";
  });
}

bool IsChecked(HWND option) { return SendMessageW(option, BM_GETCHECK, 0, 0) == BST_CHECKED; }

constexpr wchar_t kMore[] = L"More Options";
constexpr wchar_t kChooser[] = L"Select a folder to follow";
constexpr base::PackedColor kAlbumRed = base::Rgb(240, 0, 0);
constexpr base::PackedColor kAlbumBlue = base::Rgb(0, 0, 240);

// The classic file with the sample pictures, and a folder of photos beside it.
class MoreOptionsTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const wchar_t* name : {L"zbfaone.ini", L"image1.gif", L"image2.gif"}) {
      ASSERT_TRUE(CopyFileW((e2e::builtFolder + L"\\" + name).c_str(), (folder.path() + L"\\" + name).c_str(),
                            FALSE));
    }
    ASSERT_TRUE(CreateDirectoryW(album().c_str(), nullptr));
    pictureFolder.writeBitmap("album\\a.bmp", {30, 20}, kAlbumRed);
    pictureFolder.writeBitmap("album\\b.bmp", {30, 20}, kAlbumBlue);
    changeQuickly();
  }

  // Two seconds a picture.
  void changeQuickly() const {
    std::string file = folder.readSettingsFile();
    const std::string asShipped = "timeInterval=8";
    const std::size_t at = file.find(asShipped);
    ASSERT_NE(at, std::string::npos);
    folder.writeFile("zbfaone.ini", file.replace(at, asShipped.size(), "timeInterval=2"));
  }

  std::wstring album() const { return pictureFolder.path() + L"\\album"; }

  void expectTheFileToHaveIt() {
    const support::Windows1252 ansi;
    const settings::IniDocument file(folder.readSettingsFile(), ansi);
    EXPECT_EQ(file.value("extras", "change"), "crossfade");
    EXPECT_EQ(file.value("extras", "captions"), "{name}");
    ASSERT_EQ(settings::FollowedFolders(file).size(), 1U);
    EXPECT_EQ(settings::FollowedFolders(file)[0], os::FromWide(album()));
    EXPECT_EQ(file.value("images", "1"), os::FromWide(folder.path()) + "\\image2.gif") << "the list stays";
  }

  // Tries the show before anything is saved; `end` is what the user ends it with.
  void tryIt(const e2e::RunningProgram& program, HWND dialog, const std::function<void()>& begin,
             const std::function<void()>& end) const {
    const std::string before = folder.readSettingsFile();
    begin();
    HWND show = nullptr;
    ASSERT_TRUE(e2e::WaitFor([&] {
      show = program.findWindow(e2e::kShowClass);
      return show != nullptr;
    }));
    ASSERT_TRUE(WaitForKeyboard(show));
    end();  // once: a second time would be for the dialog
    EXPECT_TRUE(e2e::WaitFor([&] { return !IsWindow(show); }));
    ASSERT_TRUE(WaitForKeyboard(dialog));
    EXPECT_EQ(folder.readSettingsFile(), before);
  }

  // White words stand at the top of the screen.
  static bool seesCaption() {
    const base::Bitmap screen = e2e::ReadScreen();
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < screen.size().width; ++x) {
        if (screen.at(x, y) == base::OpaquePixel(base::kWhite)) return true;
      }
    }
    return false;
  }

  // Red and blue in one place at the same time.
  static bool isMixed(base::Pixel pixel) {
    const auto isBetween = [](base::Pixel part) { return part > 40 && part < 200; };
    return isBetween(pixel >> 16 & 0xFF) && isBetween(pixel & 0xFF) && (pixel >> 8 & 0xFF) < 40;
  }

  // The show that comes of it has the folder's pictures with their names, fades from one to the other, and
  // ends by a key.
  void expectTheShowToShowIt() {
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    ASSERT_TRUE(e2e::MiddleComesToBe(base::OpaquePixel(kAlbumRed), e2e::kLongShowMs));
    EXPECT_TRUE(e2e::WaitFor([] { return seesCaption(); }));
    bool mixed = false;
    EXPECT_TRUE(e2e::WaitFor([&] {
      const base::Pixel now = e2e::MiddlePixel();
      mixed = mixed || isMixed(now);
      return now == base::OpaquePixel(kAlbumBlue);
    }));
    EXPECT_TRUE(mixed);
    EXPECT_TRUE(show.endsByKey());
    EXPECT_EQ(show.exitCode(), 0U);
  }

  e2e::ProgramFolder folder{L"more"};
  e2e::ProgramFolder pictureFolder{L"pictures"};
};

TEST_F(MoreOptionsTest, AreChosenTriedSavedAndSeenByTheKeyboardAlone) {
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = e2e::DialogOf(program);
  ASSERT_NE(dialog, nullptr);
  const HWND moreButton = e2e::WaitForChild(dialog, L"Button", L"&More...");
  ASSERT_NE(moreButton, nullptr);
  HWND more = nullptr;
  ASSERT_TRUE(e2e::PressUntil(
      dialog, [&] { return (more = FindWindowW(nullptr, kMore)) != nullptr; }, 'M', VK_MENU));
  ASSERT_TRUE(WaitForKeyboard(more));

  const HWND fade = e2e::FindOnTabs(more, L"Button", L"Crossf&ade", e2e::NextTab);
  ASSERT_NE(fade, nullptr);
  EXPECT_TRUE(e2e::PressUntil(
      more, [&] { return IsChecked(fade); }, 'A', VK_MENU));

  ASSERT_TRUE(e2e::NextTab(more));
  const HWND combo = e2e::WaitForChild(more, L"ComboBox", L"No captions by themselves");
  ASSERT_NE(combo, nullptr);
  ASSERT_TRUE(e2e::PressUntil(
      more, [&] { return FocusIn(more) == combo; }, 'T', VK_MENU))
      << "a label's letter leads to what it names";
  e2e::PressKey(VK_DOWN);
  EXPECT_NE(e2e::WaitForChild(more, L"Edit", L"{name}"), nullptr);

  ASSERT_TRUE(e2e::NextTab(more));
  ASSERT_NE(e2e::WaitForChild(more, L"Button", L"&Add..."), nullptr);
  ASSERT_TRUE(e2e::PressUntil(
      more, [] { return FindWindowW(nullptr, kChooser) != nullptr; }, 'A', VK_MENU));
  const HWND chooser = WaitForWindow(kChooser);
  ASSERT_NE(chooser, nullptr);
  ASSERT_TRUE(WaitForKeyboard(chooser));
  ASSERT_TRUE(WaitForEditInside(chooser));
  e2e::TypeText(album());
  e2e::PressKey(VK_RETURN);
  ASSERT_TRUE(WaitForNoWindow(kChooser));
  ASSERT_TRUE(e2e::PressUntil(
      more, [&] { return !IsWindow(more); }, 'O', VK_MENU));
  ASSERT_TRUE(WaitForKeyboard(dialog));
  tryIt(
      program, dialog, [] { e2e::PressWith(VK_MENU, 'T'); }, [] { e2e::PressKey(VK_SPACE); });
  ASSERT_TRUE(e2e::PressUntil(
      dialog, [&] { return !program.isRunning(); }, 'O', VK_MENU));
  EXPECT_EQ(program.exitCode(), 0U);
  expectTheFileToHaveIt();
  expectTheShowToShowIt();
}

// Clicks on one tab after the other.
testing::AssertionResult ClickNextTab(HWND form) { return e2e::ClickTab(form, e2e::ShownTab(form) + 1); }

TEST_F(MoreOptionsTest, AreChosenTriedSavedAndSeenByTheMouseAlone) {
  // The folder of photos lies alone where the user keeps pictures.
  const e2e::PicturesFolder pictures(pictureFolder.path());
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = e2e::DialogOf(program);
  ASSERT_NE(dialog, nullptr);
  const HWND moreButton = e2e::WaitForChild(dialog, L"Button", L"&More...");
  ASSERT_NE(moreButton, nullptr);
  ClickOn(moreButton);
  const HWND more = WaitForWindow(kMore);
  ASSERT_NE(more, nullptr);

  const HWND fade = e2e::FindOnTabs(more, L"Button", L"Crossf&ade", ClickNextTab);
  ASSERT_NE(fade, nullptr);
  ClickOn(fade);
  EXPECT_TRUE(e2e::WaitFor([&] { return IsChecked(fade); }));

  const HWND combo = e2e::FindOnTabs(more, L"ComboBox", L"No captions by themselves", ClickNextTab);
  ASSERT_NE(combo, nullptr);
  ClickOn(combo);
  HWND choices = nullptr;
  ASSERT_TRUE(e2e::WaitFor([&] { return (choices = program.findWindow(L"ComboLBox")) != nullptr; }));
  RECT place{};
  GetWindowRect(choices, &place);
  const auto line = static_cast<int>(SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0));
  e2e::ClickAt(place.left + 20, place.top + line * 3 / 2);
  EXPECT_NE(e2e::WaitForChild(more, L"Edit", L"{name}"), nullptr);

  const HWND add = e2e::FindOnTabs(more, L"Button", L"&Add...", ClickNextTab);
  ASSERT_NE(add, nullptr);
  ClickOn(add);
  const HWND chooser = WaitForWindow(kChooser);
  ASSERT_NE(chooser, nullptr);
  HWND list = nullptr;
  ASSERT_TRUE(e2e::WaitFor([&] { return (list = VisibleChild(chooser, L"SysListView32")) != nullptr; }));
  RECT first{};
  GetWindowRect(list, &first);
  const HWND take = GetDlgItem(chooser, IDOK);
  ASSERT_TRUE(e2e::WaitFor([&] {
    e2e::ClickAt(first.left + 30, first.top + 8);
    ClickOn(take);
    return WaitForNoWindow(kChooser, 1000);
  }));
  ASSERT_TRUE(WaitForKeyboard(more));
  const HWND ok = ChildOf(more, L"Button", L"&OK");
  ASSERT_NE(ok, nullptr);
  ClickOn(ok);
  ASSERT_TRUE(WaitForNoWindow(kMore));
  ASSERT_TRUE(WaitForKeyboard(dialog));
  tryIt(
      program, dialog, [&] { ClickOn(ChildOf(dialog, L"Button", L"&Try It")); }, [] { e2e::ClickMouse(); });
  ClickOn(ChildOf(dialog, L"Button", L"&OK"));
  ASSERT_TRUE(program.waitForEnd());
  expectTheFileToHaveIt();
  expectTheShowToShowIt();
}

}  // namespace
