#include "auxwin/frm_about.h"

#include <gtest/gtest.h>

#include "support/fake_window_system.h"
#include "support/shell_recorder.h"

namespace auxwin {
namespace {

struct FrmAboutTest : testing::Test {
  support::ShellRecorder shell;
  support::FakeWindowSystem windows;
  frmAbout about{nullptr, shell, windows};
};

TEST_F(FrmAboutTest, OkClosesIt) {
  windows.show(about);
  about.cmdOK.userClicked();
  EXPECT_EQ(windows.unloaded, std::vector<std::string>{"frmAbout"});
  EXPECT_TRUE(shell.opened.empty());
}

TEST_F(FrmAboutTest, TheLinkOpensTheMakersPageAndLeavesItOpen) {
  windows.show(about);
  about.Command1.userClicked();
  EXPECT_EQ(shell.opened, std::vector<std::string>{kMakersPage});
  EXPECT_TRUE(windows.unloaded.empty());
}

TEST_F(FrmAboutTest, EnterAndEscapeAreOk) {
  EXPECT_TRUE(about.cmdOK.isDefault);
  EXPECT_TRUE(about.cmdOK.isCancel);
}

TEST_F(FrmAboutTest, TellsNameVersionAndPurpose) {
  EXPECT_EQ(about.lblTitle.caption(), "Lumora Screen Saver");
  EXPECT_EQ(about.lblVersion.caption(), "Version " + std::string(kProductVersion));
  EXPECT_EQ(std::string(kProductVersion).find_first_not_of("0123456789."), std::string::npos);
  EXPECT_FALSE(about.lblAbout.caption().empty());
  EXPECT_TRUE(about.lblAbout.wraps);
}

TEST_F(FrmAboutTest, ShowsTheIconThatItIsGiven) {
  const auto icon = pictures::MakePicture(std::make_shared<base::Bitmap>(base::PixelSize{48, 48}));
  frmAbout withIcon(icon, shell, windows);
  EXPECT_EQ(withIcon.picIcon.picture(), icon);
}

// The address is the maker's to choose; until then it lies under a name that is nobody's.
TEST(MakersPage, LiesUnderTheReservedName) {
  EXPECT_TRUE(std::string(kMakersPage).starts_with("https://"));
  EXPECT_NE(std::string(kMakersPage).find("lumora.example/"), std::string::npos);
}

}  // namespace
}  // namespace auxwin
