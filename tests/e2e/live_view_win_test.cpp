// The show in small on the dialog's tabs, and the show that is tried from there.
#include <gtest/gtest.h>

#include <optional>

#include "e2e/dialog_hands.h"
#include "e2e/keyboard.h"
#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "os/utf16_win.h"

namespace {

constexpr base::PackedColor kFirstPicture = base::Rgb(250, 10, 20);
constexpr base::PackedColor kSecondPicture = base::Rgb(10, 20, 250);
constexpr const wchar_t* kView = L"LumoraPicture";
constexpr const wchar_t* kViewName = L"Preview of the show";
constexpr int kMouseTab = 3;
constexpr int kTransitionsTab = 5;

// Pixels of a colour that the screen shows inside a window.
int PixelsOf(HWND window, base::PackedColor color) {
  RECT place{};
  GetWindowRect(window, &place);
  const base::Bitmap shown = e2e::ReadScreen(e2e::PixelRectOf(place));
  int count = 0;
  for (int y = 0; y < shown.size().height; ++y) {
    for (int x = 0; x < shown.size().width; ++x) count += shown.at(x, y) == base::OpaquePixel(color) ? 1 : 0;
  }
  return count;
}

std::vector<std::wstring> NamesIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return names;
}

class LiveViewTest : public testing::Test {
 protected:
  LiveViewTest() {
    folder.addPicture({800, 600}, kFirstPicture, "a caption");
    folder.addPicture({800, 600}, kSecondPicture);
    folder.set("image/timeInterval", "600");
    folder.writeSettings();
    saved = folder.readSettingsFile();
  }

  void open() {
    program.emplace(folder.program(), L"/C");
    dialog = e2e::DialogOf(*program);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(e2e::WaitForKeyboard(dialog));
  }

  void goTo(int tab) {
    for (int i = 0; i < tab; ++i) ASSERT_TRUE(e2e::NextTab(dialog));
  }

  // On the tab that is shown; null where it has none.
  HWND view() const { return e2e::ChildOf(dialog, kView, kViewName); }

  bool comesToShow(base::PackedColor color) const {
    return e2e::WaitFor([&] { return view() && PixelsOf(view(), color) > 1000; });
  }

  // The show covers the screen and has the keyboard, until something ends it.
  HWND awaitShow() const {
    HWND show = nullptr;
    e2e::WaitFor([&] {
      show = program->findWindow(e2e::kShowClass);
      return show && e2e::MiddlePixel() == base::OpaquePixel(kFirstPicture);
    });
    return show;
  }

  bool isAsBefore() const {
    return e2e::WaitFor([&] { return !program->findWindow(e2e::kShowClass); }) &&
           e2e::WaitForKeyboard(dialog);
  }

  e2e::ProgramFolder folder{L"live"};
  std::string saved;
  std::optional<e2e::RunningProgram> program;
  HWND dialog = nullptr;
};

TEST_F(LiveViewTest, EachTabThatHasRoomShowsTheShow) {
  open();
  EXPECT_EQ(view(), nullptr) << "there is a preview of the selected picture";
  int views = 0;
  for (int tab = 1; tab < 8; ++tab) {
    ASSERT_TRUE(e2e::NextTab(dialog));
    if (tab == 2) continue;
    EXPECT_TRUE(comesToShow(kFirstPicture)) << "tab " << tab;
    ++views;
  }
  EXPECT_EQ(views, 6);
}

TEST_F(LiveViewTest, AnEffectThatIsJustCheckedPlays) {
  open();
  goTo(kTransitionsTab);
  ASSERT_TRUE(comesToShow(kFirstPicture));
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"Left Wipe"));
  EXPECT_TRUE(e2e::WaitFor([&] {
    const int blue = PixelsOf(view(), kSecondPicture);
    return blue > 1000 && blue < 17000;
  })) << "in the middle of it";
  EXPECT_TRUE(e2e::WaitFor([&] { return PixelsOf(view(), kSecondPicture) > 19000; })) << "and at its end";
}

TEST_F(LiveViewTest, ThePointerOverTheMousesTabDarkensTheShow) {
  open();
  goTo(kMouseTab);
  ASSERT_TRUE(comesToShow(kFirstPicture));
  RECT place{};
  GetWindowRect(view(), &place);
  // Moves count within two seconds, so the screen is looked at between bursts of them.
  EXPECT_TRUE(e2e::WaitFor([&] {
    for (int move = 0; move < 20; ++move) {
      e2e::MoveMouseTo(static_cast<int>(place.left) + 120 + move % 2 * 40, static_cast<int>(place.top) + 100);
      e2e::WaitFor([] { return false; }, 20);
    }
    return PixelsOf(view(), kFirstPicture) == 0;
  }));
  EXPECT_TRUE(comesToShow(kFirstPicture)) << "and it comes again";
}

TEST_F(LiveViewTest, TriedByTheKeyboardTheShowEndsByAKeyAndTheDialogIsAsBefore) {
  open();
  goTo(kTransitionsTab);
  ASSERT_TRUE(comesToShow(kFirstPicture));
  const std::vector<std::wstring> before = NamesIn(folder.path());
  const HWND button = e2e::WaitForChild(dialog, L"Button", L"&Try It");
  ASSERT_NE(button, nullptr);
  e2e::PressWith(VK_MENU, 'T');
  const HWND show = awaitShow();
  ASSERT_NE(show, nullptr);
  EXPECT_FALSE(IsWindowEnabled(dialog));
  EXPECT_TRUE(e2e::PressUntil(
      show, [&] { return !IsWindow(show); }, VK_SPACE));
  EXPECT_TRUE(isAsBefore());
  EXPECT_TRUE(e2e::WaitFor([&] { return e2e::FocusIn(dialog) == button; }))
      << "the button has the keyboard again";
  EXPECT_TRUE(comesToShow(kFirstPicture)) << "the little show goes on";
  EXPECT_EQ(folder.readSettingsFile(), saved);
  EXPECT_EQ(NamesIn(folder.path()), before);
  EXPECT_TRUE(e2e::WaitForKeyboard(dialog));
  e2e::PressKey(VK_ESCAPE);
  EXPECT_TRUE(program->waitForEnd());
  EXPECT_EQ(program->exitCode(), 0U);
}

TEST_F(LiveViewTest, TriedByTheMouseItShowsWhatIsNotSavedAndEndsByAClick) {
  open();
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"Move image down"));  // blue comes first now
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"&Try It"));
  ASSERT_TRUE(e2e::WaitFor([&] {
    return program->findWindow(e2e::kShowClass) && e2e::MiddlePixel() == base::OpaquePixel(kSecondPicture);
  }));
  e2e::ClickMouse();
  EXPECT_TRUE(isAsBefore());
  EXPECT_EQ(folder.readSettingsFile(), saved);
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"&Try It"));
  HWND show = nullptr;
  ASSERT_TRUE(e2e::WaitFor([&] { return (show = program->findWindow(e2e::kShowClass)) != nullptr; }))
      << "as often as wanted";
  EXPECT_TRUE(e2e::PressUntil(
      show, [&] { return !IsWindow(show); }, VK_SPACE));
  EXPECT_TRUE(isAsBefore());
}

TEST_F(LiveViewTest, ACrashLeavesWhatWasTried) {
  open();
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"Move image down"));
  e2e::ClickOn(e2e::WaitForChild(dialog, L"Button", L"&Try It"));
  ASSERT_TRUE(e2e::WaitFor([&] { return program->findWindow(e2e::kShowClass) != nullptr; }));
  ASSERT_TRUE(e2e::MiddleComesToBe(base::OpaquePixel(kSecondPicture)));
  // A thread that begins at an address where nothing is.
  const os::OwnedHandle thread(CreateRemoteThread(
      program->process(), nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(8), nullptr, 0, nullptr));
  ASSERT_TRUE(thread);
  EXPECT_TRUE(program->waitForEnd());
  EXPECT_NE(program->exitCode(), 0U);
  EXPECT_EQ(folder.readSettingsFile(), saved);
  e2e::RunningProgram again(folder.program(), L"/C");
  ASSERT_NE(e2e::DialogOf(again), nullptr) << "the dialog opens as ever";
  const std::vector<std::wstring> names = NamesIn(folder.path());
  EXPECT_NE(std::find(names.begin(), names.end(), L"zbfaone.bak"), names.end());
}

}  // namespace
