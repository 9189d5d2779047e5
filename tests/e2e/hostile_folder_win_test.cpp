// The program in folders that take nothing: on a full disk, and where only reading is allowed. Making them is
// the test run's business; it names them in the environment.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "e2e/running_program.h"
#include "os/files_win.h"
#include "os/utf16_win.h"

namespace {

// Empty when the variable is not set.
std::wstring FolderNamedBy(const wchar_t* variable) {
  wchar_t path[MAX_PATH];
  return std::wstring(path, GetEnvironmentVariableW(variable, path, MAX_PATH));
}

HWND OkButtonOf(HWND dialog) {
  HWND found = nullptr;
  EnumChildWindows(
      dialog,
      [](HWND window, LPARAM result) CALLBACK -> BOOL {
        wchar_t text[16] = {};
        GetWindowTextW(window, text, 16);
        if (std::wstring(text) != L"&OK") return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

HWND WaitForOk(const e2e::RunningProgram& program) {
  HWND ok = nullptr;
  e2e::WaitFor([&] {
    const HWND dialog = FindWindowW(nullptr, L" Lumora Screen Saver");
    DWORD owner = 0;
    GetWindowThreadProcessId(dialog, &owner);
    if (dialog && owner == program.processId() && IsWindowVisible(dialog)) ok = OkButtonOf(dialog);
    return ok != nullptr;
  });
  return ok;
}

class HostileFolder : public testing::TestWithParam<const wchar_t*> {
 protected:
  void SetUp() override {
    folder_ = FolderNamedBy(GetParam());
    if (folder_.empty()) GTEST_SKIP() << "NOT TESTED: the test run could not make this folder";
    settings_ = os::FromWide(folder_) + "\\zbfaone.ini";
    before_ = files_.read(settings_).value_or("");
    ASSERT_FALSE(before_.empty());
    names_ = names();
  }

  std::wstring program() const { return folder_ + L"\\Lumora.scr"; }

  std::vector<std::string> names() {
    std::vector<std::string> names = files_.filesIn(os::FromWide(folder_));
    std::sort(names.begin(), names.end());
    return names;
  }

  // The settings stand as they were, and nothing lies beside them.
  void expectUntouched() {
    EXPECT_EQ(files_.read(settings_), before_);
    EXPECT_EQ(names(), names_);
  }

  os::FilesWin files_;
  std::wstring folder_;
  std::string settings_;
  std::string before_;
  std::vector<std::string> names_;
};

TEST_P(HostileFolder, AReplacementFailsAndLeavesTheOldFileWhole) {
  EXPECT_FALSE(files_.replace(settings_, std::string(64 << 10, 'x')));
  expectUntouched();
}

TEST_P(HostileFolder, TheDialogEndsQuietlyByOkAndTheSettingsStandAsTheyWere) {
  e2e::RunningProgram dialog(program(), L"/c");
  const HWND ok = WaitForOk(dialog);
  ASSERT_NE(ok, nullptr);
  PostMessageW(ok, BM_CLICK, 0, 0);
  EXPECT_TRUE(dialog.waitForEnd());
  EXPECT_EQ(dialog.exitCode(), 0U);
  expectUntouched();
}

TEST_P(HostileFolder, TheShowOfTheFirstRunComesAllTheSame) {
  ASSERT_NE(before_.find("samples=1"), std::string::npos) << "a first run";
  e2e::RunningProgram show(program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::WaitFor([&] { return e2e::MiddlePixel() != base::OpaquePixel(base::kBlack); }))
      << "a sample picture";
  EXPECT_TRUE(show.endsByKey());
  expectUntouched();
}

INSTANTIATE_TEST_SUITE_P(Places, HostileFolder,
                         testing::Values(L"LUMORA_FULL_FOLDER", L"LUMORA_READONLY_FOLDER"),
                         [](const auto& place) { return place.index == 0 ? "FullDisk" : "ReadOnly"; });

}  // namespace
