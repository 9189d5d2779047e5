#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "e2e/running_program.h"
#include "e2e/saving_process.h"
#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "os/utf16_win.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/temporary_folder_win.h"

namespace {

constexpr int kKills = 100;
constexpr int kMostKills = 2000;
constexpr int kOfAKind = 10;

// Which of the two kinds of list a file holds, whole; empty for anything else.
std::string KindOf(const settings::SaverSettings& loaded) {
  if (loaded.lastImageIndex + 1 != e2e::kSavedPictures || loaded.record.newFontName.empty()) return "";
  for (int i = 0; i < e2e::kSavedPictures; ++i) {
    const auto index = static_cast<std::size_t>(i);
    if (loaded.imageCaptions[index] != loaded.record.newFontName + std::to_string(i)) return "";
    if (!loaded.imageFiles[index].ends_with(loaded.record.newFontName + ".jpg")) return "";
  }
  return loaded.record.newFontName;
}

// The kills are in two halves, which run side by side where the tests run in two parts.
class Saving : public testing::TestWithParam<unsigned> {};

TEST_P(Saving, AProcessKilledAtAnyInstantLeavesTheOldFileOrTheNewOneWhole) {
  const support::TemporaryFolder folder;
  os::FilesWin files;
  const os::AnsiCodePageWin ansi;
  e2e::SaveOnce(folder.path(), "odd");
  wchar_t self[MAX_PATH];
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  std::mt19937 random(20261121 + GetParam());
  int odd = 0;
  int even = 0;
  // On a busy machine most processes are killed before their second save, so they get longer, and the kills
  // go on, until both kinds of file have been met often enough.
  unsigned longestMs = 12;
  for (int kill = 0; kill < kKills || (std::min(odd, even) <= kOfAKind && kill < kMostKills); ++kill) {
    {
      e2e::RunningProgram saver(self, L"--save-for-ever \"" + os::ToWide(folder.path()) + L"\"");
      ASSERT_TRUE(saver.hasStarted()) << "error " << saver.startError() << " at kill " << kill;
      const std::string started = folder.path() + "\\started";
      ASSERT_TRUE(e2e::WaitFor([&] { return files.exists(started); }));
      Sleep(random() % longestMs);  // the instant is what varies; nothing is waited for
      TerminateProcess(saver.process(), 1);
      WaitForSingleObject(saver.process(), 5000);
      DeleteFileW(os::ToWide(started).c_str());
    }
    settings::SaverSettings loaded;
    settings::LoadSettings(loaded, settings::OpenSettings(files, ansi, folder.path()));
    const std::string kind = KindOf(loaded);
    ASSERT_TRUE(kind == "odd" || kind == "even") << "after kill " << kill;
    ++(kind == "odd" ? odd : even);
    if (std::min(odd, even) <= kOfAKind) ++longestMs;
  }
  EXPECT_GT(odd, kOfAKind);
  EXPECT_GT(even, kOfAKind);
}

INSTANTIATE_TEST_SUITE_P(Half, Saving, testing::Range(0U, 2U));

}  // namespace
