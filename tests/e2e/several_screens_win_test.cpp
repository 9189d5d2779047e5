// The show on a desktop of three screens, one of them left of the primary one and one below it. They run
// where there are as many (scripts/screens.sh), and not with the other tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/colors.h"

namespace {

using support::kBlackPixel;
constexpr base::Pixel kDesk = 0xFF0CC822U;
constexpr COLORREF kDeskColor = RGB(12, 200, 34);

struct Screens {
  base::PixelRect primary;
  std::vector<base::PixelRect> others;
};

BOOL CALLBACK Collect(HMONITOR monitor, HDC, LPRECT area, LPARAM found) {
  auto& screens = *reinterpret_cast<Screens*>(found);
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(monitor, &info);
  if (info.dwFlags & MONITORINFOF_PRIMARY) {
    screens.primary = e2e::PixelRectOf(*area);
  } else {
    screens.others.push_back(e2e::PixelRectOf(*area));
  }
  return TRUE;
}

Screens FindScreens() {
  Screens screens;
  EnumDisplayMonitors(nullptr, nullptr, Collect, reinterpret_cast<LPARAM>(&screens));
  return screens;
}

// The places of a show's visible windows on the desktop.
struct ShowWindows {
  DWORD processId;
  std::vector<base::PixelRect> places;
};

BOOL CALLBACK CollectShowWindow(HWND window, LPARAM found) {
  auto& windows = *reinterpret_cast<ShowWindows*>(found);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  RECT place{};
  if (owner == windows.processId && std::wstring(name) == e2e::kShowClass && IsWindowVisible(window) &&
      GetWindowRect(window, &place)) {
    windows.places.push_back(e2e::PixelRectOf(place));
  }
  return TRUE;
}

std::vector<base::PixelRect> PlacesOf(const e2e::RunningProgram& show) {
  ShowWindows windows{show.processId(), {}};
  EnumWindows(CollectShowWindow, reinterpret_cast<LPARAM>(&windows));
  return windows.places;
}

bool Holds(const std::vector<base::PixelRect>& places, const base::PixelRect& place) {
  return std::find(places.begin(), places.end(), place) != places.end();
}

// What a screen shows near its corners and in its middle is one colour.
bool Shows(const base::PixelRect& screen, base::Pixel pixel) {
  const int right = screen.left + screen.width - 3;
  const int bottom = screen.top + screen.height - 3;
  return e2e::ScreenPixel(screen.left + 2, screen.top + 2) == pixel &&
         e2e::ScreenPixel(right, bottom) == pixel &&
         e2e::ScreenPixel(screen.left + screen.width / 2, screen.top + screen.height / 2) == pixel;
}

// A window of a known colour over the whole of a screen, as the user's work would be.
class Desk {
 public:
  explicit Desk(const base::PixelRect& screen)
      : screen_(screen),
        window_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, screen.left, screen.top,
                                screen.width, screen.height, nullptr, nullptr, nullptr, nullptr)) {}
  ~Desk() { DestroyWindow(window_); }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  bool isSeen() const {
    e2e::PaintWindow(window_, kDeskColor);
    return Shows(screen_, kDesk);
  }

 private:
  base::PixelRect screen_;
  HWND window_;
};

// Starts one of the programs that the environment names, which pull a screen's plug and put it in again. They
// may be programs of the system below Wine, of which no process is known here.
bool StartNamedBy(const wchar_t* variable) {
  wchar_t command[1024] = {};
  if (GetEnvironmentVariableW(variable, command, 1024) == 0) return false;
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION info{};
  std::wstring line = command;
  if (!CreateProcessW(command, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &info))
    return false;
  if (info.hThread) CloseHandle(info.hThread);
  if (info.hProcess) CloseHandle(info.hProcess);
  return true;
}

// Wine tells its programs nothing of a plug that is pulled outside of it, as Windows would.
void TellOfTheChange() {
  const LPARAM size = MAKELPARAM(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
  SendNotifyMessageW(HWND_BROADCAST, WM_DISPLAYCHANGE, 32, size);
}

class SeveralScreens : public testing::Test {
 protected:
  void SetUp() override {
    screens = FindScreens();
    ASSERT_EQ(screens.others.size(), 2U) << "these tests want three screens";
    ASSERT_TRUE(std::any_of(screens.others.begin(), screens.others.end(),
                            [](const base::PixelRect& screen) { return screen.left < 0; }));
    folder.set("background/newBackColor", "128");
    folder.set("image/timeInterval", "3");
    e2e::MoveMouseTo(screens.primary.width / 2, screens.primary.height / 2);
  }

  // Starts the show and waits until it is seen on the primary screen.
  bool starts(e2e::RunningProgram& show) const {
    return show.waitForShow() && e2e::WaitFor([&] { return Shows(screens.primary, support::kDarkRedPixel); });
  }

  Screens screens;
  e2e::ProgramFolder folder;
};

TEST_F(SeveralScreens, OnlyThePrimaryOneIsCoveredUnlessToldOtherwise) {
  folder.writeSettings();
  const Desk left(screens.others[0]);
  const Desk below(screens.others[1]);
  ASSERT_TRUE(e2e::WaitFor([&] { return left.isSeen() && below.isSeen(); }));
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_TRUE(starts(show));
  EXPECT_EQ(PlacesOf(show), std::vector{screens.primary});
  EXPECT_TRUE(left.isSeen());
  EXPECT_TRUE(below.isSeen());
  EXPECT_TRUE(show.endsByKey());
}

TEST_F(SeveralScreens, TheOthersAreBlackWhenToldSoAndComeBackWithTheEnd) {
  folder.set("extras/otherScreens", "black");
  folder.writeSettings();
  const Desk left(screens.others[0]);
  const Desk below(screens.others[1]);
  ASSERT_TRUE(e2e::WaitFor([&] { return left.isSeen() && below.isSeen(); }));
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_TRUE(starts(show));
  for (const base::PixelRect& other : screens.others) {
    EXPECT_TRUE(e2e::WaitFor([&] { return Shows(other, kBlackPixel); })) << other.left << ", " << other.top;
    EXPECT_TRUE(Holds(PlacesOf(show), other));
  }
  EXPECT_TRUE(Shows(screens.primary, support::kDarkRedPixel)) << "a cover lies over its own screen alone";
  EXPECT_TRUE(show.endsByKey());
  EXPECT_TRUE(e2e::WaitFor([&] { return left.isSeen() && below.isSeen(); }));
}

TEST_F(SeveralScreens, AClickOnACoverEndsTheShow) {
  folder.set("extras/otherScreens", "black");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_TRUE(starts(show));
  const base::PixelRect& other = screens.others.front();
  ASSERT_TRUE(e2e::WaitFor([&] { return Holds(PlacesOf(show), other); }));
  SetCursorPos(other.left + other.width / 2, other.top + other.height / 2);
  e2e::ClickMouse();
  EXPECT_TRUE(show.waitForEnd());
}

TEST_F(SeveralScreens, AScreenThatIsUnpluggedTakesItsCoverAlongAndBringsItBack) {
  folder.set("extras/otherScreens", "black");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_TRUE(starts(show));
  ASSERT_TRUE(e2e::WaitFor([&] { return PlacesOf(show).size() == 3; }));
  ASSERT_TRUE(StartNamedBy(L"LUMORA_UNPLUG"));
  ASSERT_TRUE(e2e::WaitFor([&] { return FindScreens().others.size() == 1; }));
  TellOfTheChange();
  EXPECT_TRUE(e2e::WaitFor([&] { return PlacesOf(show).size() == 2; }));
  EXPECT_TRUE(show.isRunning());
  EXPECT_TRUE(e2e::WaitFor([&] { return Shows(FindScreens().primary, support::kDarkRedPixel); }));
  ASSERT_TRUE(StartNamedBy(L"LUMORA_PLUG"));
  ASSERT_TRUE(e2e::WaitFor([&] { return FindScreens().others.size() == 2; }));
  TellOfTheChange();
  EXPECT_TRUE(e2e::WaitFor([&] { return PlacesOf(show).size() == 3; }));
  for (const base::PixelRect& other : FindScreens().others) {
    EXPECT_TRUE(e2e::WaitFor([&] { return Shows(other, kBlackPixel); })) << other.left << ", " << other.top;
  }
  EXPECT_TRUE(show.endsByKey());
}

TEST_F(SeveralScreens, EachHasItsOwnPartOfTheDesktopAsABackground) {
  folder.set("background/backEffect", "1");
  folder.set("extras/otherScreens", "same");
  folder.writeSettings();
  const Desk left(screens.others[0]);
  const Desk below(screens.others[1]);
  ASSERT_TRUE(e2e::WaitFor([&] { return left.isSeen() && below.isSeen(); }));
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_TRUE(show.waitForShow());
  ASSERT_TRUE(e2e::WaitFor([&] { return PlacesOf(show).size() == 3; }));
  for (const base::PixelRect& other : screens.others) {
    EXPECT_TRUE(e2e::WaitFor([&] { return Shows(other, kDesk); })) << other.left << ", " << other.top;
  }
  EXPECT_TRUE(show.endsByKey());
}

base::Pixel MiddleOf(const base::PixelRect& screen) {
  return e2e::ScreenPixel(screen.left + screen.width / 2, screen.top + screen.height / 2);
}

// How many pixels of a screen's middle row have a colour, looked at in steps of four.
int Columns(const base::PixelRect& screen, base::Pixel color) {
  int found = 0;
  for (int x = 0; x < screen.width; x += 4) {
    if (e2e::ScreenPixel(screen.left + x, screen.top + screen.height / 2) == color) found += 4;
  }
  return found;
}

// Four pictures of plain colours, larger than any screen; half of each screen's width is for them.
class PicturesOnSeveralScreens : public SeveralScreens {
 protected:
  void startShowing(const char* otherScreens) {
    for (const base::PackedColor color : colors) folder.addPicture({2400, 1200}, color, "a caption");
    folder.set("image/picturePercent", "50");
    folder.set("extras/otherScreens", otherScreens);
    folder.set("extras/loadAhead", "1");
    folder.writeSettings();
    show.emplace(folder.program(), L"/S");
    ASSERT_TRUE(show->waitForShow());
  }

  static base::Pixel pixel(std::size_t picture) { return base::OpaquePixel(colors[picture % 4]); }

  static constexpr base::PackedColor colors[] = {base::Rgb(250, 0, 0), base::Rgb(0, 250, 0),
                                                 base::Rgb(0, 0, 250), base::Rgb(250, 250, 0)};
  std::optional<e2e::RunningProgram> show;
};

TEST_F(PicturesOnSeveralScreens, TheSameOneIsSizedForEach) {
  startShowing("same");
  std::vector<base::PixelRect> all = screens.others;
  all.push_back(screens.primary);
  EXPECT_TRUE(e2e::WaitFor([&] {
    return std::ranges::all_of(all,
                               [](const base::PixelRect& screen) { return MiddleOf(screen) == pixel(0); });
  }));
  for (const base::PixelRect& screen : all) EXPECT_NEAR(Columns(screen, pixel(0)), screen.width / 2, 8);
  EXPECT_TRUE(e2e::WaitFor([&] {
    return std::ranges::all_of(all,
                               [](const base::PixelRect& screen) { return MiddleOf(screen) == pixel(1); });
  })) << "all of them change";
  EXPECT_TRUE(show->endsByKey());
}

// Something is written between two heights of a screen, right of a column.
bool HasInk(const base::PixelRect& screen, int left, int top, int bottom) {
  for (int y = top; y < bottom; y += 2) {
    for (int x = left; x < screen.width; x += 2) {
      const base::Pixel pixel = e2e::ScreenPixel(screen.left + x, screen.top + y);
      if (pixel != kBlackPixel && pixel != support::kDarkRedPixel &&
          pixel != base::OpaquePixel(base::Rgb(250, 0, 0)))
        return true;
    }
  }
  return false;
}

TEST_F(PicturesOnSeveralScreens, TheCaptionStandsOnEachAndTheClockOnThePrimaryOne) {
  folder.set("image/timeDisplay", "1");
  folder.set("image/timeInterval", "30");
  startShowing("same");
  std::vector<base::PixelRect> all = screens.others;
  all.push_back(screens.primary);
  for (const base::PixelRect& screen : all) {
    EXPECT_TRUE(e2e::WaitFor([&] { return HasInk(screen, screen.width / 3, 0, 24); })) << screen.left;
  }
  const auto hasClock = [](const base::PixelRect& screen) {
    return HasInk(screen, screen.width - 120, screen.height - 20, screen.height);
  };
  EXPECT_TRUE(e2e::WaitFor([&] { return hasClock(screens.primary); }));
  for (const base::PixelRect& other : screens.others) EXPECT_FALSE(hasClock(other)) << other.left;
  EXPECT_TRUE(show->endsByKey());
}

TEST_F(PicturesOnSeveralScreens, ThreeChangeToTheNextThree) {
  startShowing("different");
  const auto shows = [&](std::size_t first) {
    return MiddleOf(screens.primary) == pixel(first) && MiddleOf(screens.others[0]) == pixel(first + 1) &&
           MiddleOf(screens.others[1]) == pixel(first + 2);
  };
  EXPECT_TRUE(e2e::WaitFor([&] { return shows(0); }));
  EXPECT_TRUE(e2e::WaitFor([&] { return shows(3); }));
  EXPECT_TRUE(show->endsByKey());
}

TEST_F(PicturesOnSeveralScreens, OneSpansAllOfThem) {
  startShowing("span");
  base::PixelRect whole = screens.primary;
  for (const base::PixelRect& other : screens.others) whole = whole.united(other);
  EXPECT_EQ(PlacesOf(*show), std::vector{whole});
  EXPECT_TRUE(e2e::WaitFor([&] { return MiddleOf(whole) == pixel(0); }));
  EXPECT_TRUE(show->endsByKey());
}

TEST_F(PicturesOnSeveralScreens, AScreenThatIsUnpluggedLeavesTheOthersTheirPictures) {
  folder.set("image/timeInterval", "30");
  startShowing("different");
  ASSERT_TRUE(e2e::WaitFor([&] { return MiddleOf(screens.others[1]) == pixel(2); }));
  ASSERT_TRUE(StartNamedBy(L"LUMORA_UNPLUG"));
  ASSERT_TRUE(e2e::WaitFor([&] { return FindScreens().others.size() == 1; }));
  TellOfTheChange();
  EXPECT_TRUE(e2e::WaitFor([&] { return PlacesOf(*show).size() == 2; }));
  EXPECT_EQ(MiddleOf(screens.primary), pixel(0));
  EXPECT_EQ(MiddleOf(FindScreens().others.front()), pixel(1));
  ASSERT_TRUE(StartNamedBy(L"LUMORA_PLUG"));
  ASSERT_TRUE(e2e::WaitFor([&] { return FindScreens().others.size() == 2; }));
  TellOfTheChange();
  EXPECT_TRUE(e2e::WaitFor([&] { return PlacesOf(*show).size() == 3; }));
  EXPECT_TRUE(show->endsByKey());
}

}  // namespace
