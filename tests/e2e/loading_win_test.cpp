// The program with loadAhead=1, on pictures that come and on a file that does not answer. Making that is the
// test run's business; it names it in the environment.
#include <gtest/gtest.h>

#include <string>

#include "e2e/dialog_hands.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

using support::kBluePixel;
using support::kRedPixel;

// Empty when the test run could not make one.
std::string SilentFile() {
  wchar_t path[MAX_PATH];
  return os::FromWide(std::wstring(path, GetEnvironmentVariableW(L"LUMORA_SILENT_FILE", path, MAX_PATH)));
}

TEST(LoadAhead, PicturesAppearInTheirOrderAndAKeyEndsTheShow) {
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.addPicture({300, 200}, base::Rgb(255, 0, 0));
  folder.addPicture({300, 200}, base::Rgb(0, 0, 255));
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel, e2e::kLongShowMs));
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel, e2e::kLongShowMs));
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel, e2e::kLongShowMs));
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST(LoadAhead, AFileThatDoesNotAnswerIsPassedOverAndAKeyEndsTheShow) {
  const std::string silent = SilentFile();
  if (silent.empty()) GTEST_SKIP() << "NOT TESTED: the test run could not make a file that does not answer";
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.addPicture({300, 200}, base::Rgb(255, 0, 0));
  folder.addPath(silent);
  folder.addPicture({300, 200}, base::Rgb(0, 0, 255));
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel, e2e::kLongShowMs));
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel, e2e::kLongShowMs));
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST(LoadAhead, AShowWhoseOnlyPictureDoesNotAnswerEndsByAKey) {
  const std::string silent = SilentFile();
  if (silent.empty()) GTEST_SKIP() << "NOT TESTED: the test run could not make a file that does not answer";
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.addPath(silent);
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST(LoadAhead, TheDialogIsClosedAtOnceThoughItsFirstPictureDoesNotAnswer) {
  const std::string silent = SilentFile();
  if (silent.empty()) GTEST_SKIP() << "NOT TESTED: the test run could not make a file that does not answer";
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.addPath(silent);
  folder.writeSettings();
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = e2e::DialogOf(program);
  ASSERT_NE(dialog, nullptr);
  PostMessageW(dialog, WM_CLOSE, 0, 0);
  EXPECT_TRUE(program.waitForEnd());
}

// The viewer on the file, when it is there; null when it does not come.
HWND ViewerOf(const e2e::RunningProgram& program) {
  HWND viewer = nullptr;
  e2e::WaitFor([&] {
    viewer = FindWindowW(nullptr, L"silent.jpg");
    DWORD owner = 0;
    if (viewer) GetWindowThreadProcessId(viewer, &owner);
    return viewer && owner == program.processId() && IsWindowVisible(viewer);
  });
  return viewer;
}

TEST(LoadAhead, AViewerWhosePictureDoesNotAnswerIsClosedAtOnceAndTheDialogToo) {
  const std::string silent = SilentFile();
  if (silent.empty()) GTEST_SKIP() << "NOT TESTED: the test run could not make a file that does not answer";
  e2e::ProgramFolder folder;
  folder.set("extras/loadAhead", "1");
  folder.addPath(silent);
  folder.writeSettings();
  e2e::RunningProgram program(folder.program(), L"/C");
  const HWND dialog = e2e::DialogOf(program);
  ASSERT_NE(dialog, nullptr);
  const HWND enlarge = e2e::WaitForChild(dialog, L"Button", L"&Enlarge");
  ASSERT_NE(enlarge, nullptr);
  PostMessageW(enlarge, BM_CLICK, 0, 0);
  const HWND viewer = ViewerOf(program);
  ASSERT_NE(viewer, nullptr);
  PostMessageW(viewer, WM_CLOSE, 0, 0);
  EXPECT_TRUE(e2e::WaitFor([&] { return !IsWindow(viewer); }, 3000));
  PostMessageW(enlarge, BM_CLICK, 0, 0);
  ASSERT_NE(ViewerOf(program), nullptr);
  PostMessageW(dialog, WM_CLOSE, 0, 0);
  EXPECT_TRUE(program.waitForEnd(3000));
}

}  // namespace
