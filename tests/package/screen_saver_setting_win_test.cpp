#include <windows.h>

#include "package/installation.h"
#include "package/packages.h"
#include "package/user_registry.h"

namespace {

using package::kDesktopKey;
using package::packages;
using package::ReadText;
using package::WriteText;

constexpr const wchar_t* kOtherSaver = L"C:\\windows\\system32\\other.scr";
constexpr const wchar_t* kThirdSaver = L"C:\\windows\\system32\\third.scr";

class ScreenSaverSetting : public package::Installation {
 protected:
  // The user's settings before the installation, nothing for none.
  static void before(const std::optional<std::wstring>& saver, const std::optional<std::wstring>& active,
                     const std::optional<std::wstring>& timeOut) {
    WriteText(kDesktopKey, L"SCRNSAVE.EXE", saver);
    WriteText(kDesktopKey, L"ScreenSaveActive", active);
    WriteText(kDesktopKey, L"ScreenSaveTimeOut", timeOut);
  }
  static std::optional<std::wstring> active() { return ReadText(kDesktopKey, L"ScreenSaveActive"); }
  static std::optional<std::wstring> timeOut() { return ReadText(kDesktopKey, L"ScreenSaveTimeOut"); }
};

TEST_F(ScreenSaverSetting, IsTakenWithATimeOutWhereThereIsNone) {
  before({}, {}, {});
  ASSERT_TRUE(install(packages.setup));
  EXPECT_EQ(screenSaver(), program());
  EXPECT_EQ(active(), L"1");
  EXPECT_EQ(timeOut(), L"600");
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(screenSaver(), std::nullopt);
  EXPECT_EQ(active(), std::nullopt);
  EXPECT_EQ(timeOut(), std::nullopt);
}

TEST_F(ScreenSaverSetting, LeavesTheUsersTimeOutAlone) {
  before({}, L"1", L"180");
  ASSERT_TRUE(install(packages.setup));
  EXPECT_EQ(timeOut(), L"180");
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(timeOut(), L"180");
  EXPECT_EQ(active(), L"1");
}

TEST_F(ScreenSaverSetting, OfBeforeTheFirstInstallationComesBackAfterAnUpgrade) {
  before(kOtherSaver, L"0", L"0");
  ASSERT_TRUE(install(packages.setup));
  EXPECT_EQ(screenSaver(), program());
  EXPECT_EQ(active(), L"1");
  EXPECT_EQ(timeOut(), L"600");
  ASSERT_TRUE(install(packages.laterSetup, L"/SAVER=yes"));
  EXPECT_EQ(screenSaver(), program());
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(screenSaver(), kOtherSaver);
  EXPECT_EQ(active(), L"0");
  EXPECT_EQ(timeOut(), L"0");
}

TEST_F(ScreenSaverSetting, ThatTheUserChoseSinceThenStays) {
  before(kOtherSaver, L"1", L"300");
  ASSERT_TRUE(install(packages.setup));
  WriteText(kDesktopKey, L"SCRNSAVE.EXE", kThirdSaver);
  ASSERT_TRUE(install(packages.laterSetup));
  EXPECT_EQ(screenSaver(), kThirdSaver) << "an upgrade leaves the choice";
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(screenSaver(), kThirdSaver) << "and so does the uninstaller";
}

TEST_F(ScreenSaverSetting, IsNotTouchedWhenTheSwitchSaysNo) {
  before(kOtherSaver, L"0", {});
  ASSERT_TRUE(install(packages.setup, L"/SAVER=no"));
  EXPECT_EQ(screenSaver(), kOtherSaver);
  EXPECT_EQ(active(), L"0");
  EXPECT_EQ(timeOut(), std::nullopt);
}

TEST_F(ScreenSaverSetting, ThatNamesALumoraWithoutTheInstallersHelpGoesWithIt) {
  before({}, L"1", L"300");
  ASSERT_TRUE(install(packages.setup, L"/SAVER=no"));
  WriteText(kDesktopKey, L"SCRNSAVE.EXE", program());
  ASSERT_TRUE(uninstall(L"/SETTINGS=remove"));
  EXPECT_EQ(screenSaver(), std::nullopt);
  EXPECT_EQ(active(), L"1");
}

}  // namespace
