#include "library/hidden_pictures.h"

#include <gtest/gtest.h>

#include "library/show_state.h"
#include "support/fake_files.h"

namespace {

using library::HiddenPictures;
using library::KeptFile;
using library::ShowState;

class HiddenPicturesTest : public testing::Test {
 protected:
  const std::vector<std::string> folders = {"C:\\Lumora", "C:\\Local"};

  void keep(const ShowState& state) {
    KeptFile(files, folders, library::kShowStateName, library::kShowStateKind).save(PayloadOf(state));
  }
  ShowState kept() {
    KeptFile file(files, folders, library::kShowStateName, library::kShowStateKind);
    return LoadShowState(file);
  }
  HiddenPictures hidden() { return {files, folders}; }

  support::FakeFiles files;
};

TEST_F(HiddenPicturesTest, AreNoneWhereNothingIsRememberedAndNothingIsWrittenThen) {
  EXPECT_EQ(hidden().count(), 0U);
  EXPECT_TRUE(hidden().bringBack());
  EXPECT_TRUE(files.writes.empty());
}

TEST_F(HiddenPicturesTest, AreCountedAndAllBroughtBackWhileTheRestIsKept) {
  keep({.position = {7, "C:\\b.jpg"}, .lastIndex = 1, .hidden = {"C:\\a.jpg", "C:\\c.jpg"}});
  EXPECT_EQ(hidden().count(), 2U);
  EXPECT_TRUE(hidden().bringBack());
  EXPECT_EQ(hidden().count(), 0U);
  EXPECT_EQ(kept(), (ShowState{.position = {7, "C:\\b.jpg"}, .lastIndex = 1, .hidden = {}}));
}

TEST_F(HiddenPicturesTest, StayHiddenWhereNothingCanBeWritten) {
  keep({.position = {}, .hidden = {"C:\\a.jpg"}});
  files.writable = false;
  EXPECT_FALSE(hidden().bringBack());
  EXPECT_EQ(hidden().count(), 1U);
}

TEST_F(HiddenPicturesTest, OfADamagedFileAreNone) {
  files.content["C:\\Lumora\\lumora.state"] = "no state";
  EXPECT_EQ(hidden().count(), 0U);
}

}  // namespace
