#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>

#include <algorithm>
#include <set>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "support/hostile/hostile_pictures.h"
#include "support/hostile/jpeg_files.h"

namespace {

constexpr base::PackedColor kFirst = base::Rgb(12, 200, 90);
constexpr base::PackedColor kLast = base::Rgb(90, 12, 200);
constexpr base::PixelSize kGood{200, 100};
constexpr SIZE_T kMost = SIZE_T{1} << 30;
constexpr int kTurns = 8;  // of a good picture, so that it stays for a while
constexpr std::size_t kHalves = 2;
constexpr int kLimitMs = 240000;  // for one of them

// The good picture stands in the middle of the screen. Its turns are short, so the screen is looked at often.
bool ComesToShow(base::PackedColor color) { return e2e::MiddleComesToBe(base::OpaquePixel(color), kLimitMs); }

SIZE_T PeakMemory(const e2e::RunningProgram& program) {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  GetProcessMemoryInfo(program.process(), &counters, sizeof counters);
  return std::max(counters.PeakPagefileUsage, counters.PeakWorkingSetSize);
}

// The set without the files that differ in their names alone: each costs the pause of a change.
support::HostilePictures DifferentOnes() {
  support::HostilePictures different;
  std::set<std::string> seen;
  for (auto& picture : support::AllHostilePictures()) {
    if (seen.insert(picture.bytes).second) different.push_back(std::move(picture));
  }
  return different;
}

// One of the halves of the set, which run side by side where the tests run in two parts: a good picture
// before it, what is no file behind it, and at last another good picture.
class HostileShow : public testing::TestWithParam<std::size_t> {
 protected:
  HostileShow() {
    folder.set("image/timeInterval", "0.03");
    addGood("first.bmp", kFirst);
    const support::HostilePictures all = DifferentOnes();
    for (std::size_t i = GetParam(); i < all.size(); i += kHalves) {
      folder.addPath(folder.writeFile(all[i].name, all[i].bytes));
    }
    addPlaces();
    addGood("last.bmp", kLast);
    folder.writeSettings();
  }

  ~HostileShow() override { CloseHandle(locked); }

  e2e::ProgramFolder folder;
  HANDLE locked = INVALID_HANDLE_VALUE;

 private:
  void addGood(const std::string& name, base::PackedColor color) {
    const std::string path = folder.writeBitmap(name, kGood, color);
    for (int i = 0; i < kTurns; ++i) folder.addPath(path);
  }

  void addPlaces() {
    const std::string inside = os::FromWide(folder.path()) + "\\";
    CreateDirectoryW(os::ToWide(inside + "x.jpg").c_str(), nullptr);
    folder.addPath(inside + "x.jpg");
    const std::string shut = folder.writeBitmap("locked.bmp", kGood, kFirst);
    locked = CreateFileW(os::ToWide(shut).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    folder.addPath(shut);
    for (const char* path :
         {"CON", "NUL.jpg", "COM1.bmp", "\\\\.\\pipe\\none.jpg", "\\\\127.0.0.1\\none\\x.jpg"}) {
      folder.addPath(path);
    }
    folder.addPath(inside + std::string(300, 'p') + ".jpg");
    folder.addPath(inside + std::string(120, 'p') + "\\" + std::string(120, 'q') + ".jpg");
  }
};

TEST_P(HostileShow, WhatCannotBeDrawnIsPassedOverAndTheShowGoesOn) {
  ASSERT_NE(locked, INVALID_HANDLE_VALUE);
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(ComesToShow(kFirst));
  EXPECT_TRUE(ComesToShow(kLast));
  EXPECT_TRUE(ComesToShow(kFirst)) << "after the last picture comes the first";
  EXPECT_TRUE(show.isRunning());
  EXPECT_LT(PeakMemory(show), kMost);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Half, HostileShow, testing::Range(std::size_t{0}, kHalves));

// The text of a message box of the program, once one is open; empty when none comes.
std::wstring MessageOf(const e2e::RunningProgram& program) {
  std::wstring text;
  e2e::WaitFor([&] {
    const HWND box = program.findWindow(L"#32770");
    if (!box) return false;
    for (HWND part = nullptr; (part = FindWindowExW(box, part, L"Static", nullptr)) != nullptr;) {
      wchar_t line[256] = {};
      SendMessageW(part, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(line));
      text += line;
    }
    return !text.empty();
  });
  return text;
}

TEST(HostileChoice, TheDialogSaysThatThePictureCannotBeLoadedAndStaysOpen) {
  e2e::ProgramFolder folder;
  folder.addPath(folder.writeFile("holiday.jpg", support::PlainJpeg().substr(0, 100)));
  folder.writeSettings();
  e2e::RunningProgram dialog(folder.program(), L"/C");
  EXPECT_EQ(MessageOf(dialog), L"Cannot load image file properly.\r\nYou need to reload a new one.");
  EXPECT_TRUE(e2e::WaitFor([&] {
    const HWND box = dialog.findWindow(L"#32770");
    if (box) PostMessageW(box, WM_COMMAND, IDOK, 0);
    return box == nullptr;
  }));
  EXPECT_TRUE(dialog.isRunning());
}

}  // namespace
