// An installation of a test's own: nothing of Lumora is there before, and nothing after.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "package/user_state.h"

namespace package {

class Installation : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Runs an installer with switches and waits for its end; its exit code.
  static unsigned run(const std::wstring& setup, const std::wstring& switches);
  // Installs in silence; true when a program is there afterwards.
  testing::AssertionResult install(const std::wstring& setup, const std::wstring& switches = L"");
  // Uninstalls in silence and waits until the uninstaller has come to its end.
  testing::AssertionResult uninstall(const std::wstring& switches = L"");

  std::wstring folder() const { return folder_; }
  std::wstring program() const { return folder_ + L"\\Lumora.scr"; }
  std::wstring settingsFile() const { return folder_ + L"\\zbfaone.ini"; }
  // As its resources say.
  static std::wstring versionOf(const std::wstring& file);

  // Where the installer goes when nobody tells it another place.
  static std::wstring proposedFolder();
  // A place that a test may choose.
  static std::wstring otherFolder();

  static std::optional<std::wstring> screenSaver();

 private:
  std::wstring folder_;
  std::optional<std::wstring> saver_, active_, timeOut_;
};

}  // namespace package
