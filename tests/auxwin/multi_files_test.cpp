#include "auxwin/multi_files.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/fake_dialogs.h"
#include "support/fake_files.h"
#include "support/fake_window_system.h"

namespace auxwin {
namespace {

using Paths = std::vector<std::string>;

struct MultiFilesTest : testing::Test {
  support::FakeFiles disk;
  support::FakeDialogs dialogs;
  support::FakeWindowSystem windows;
  forms::Form dialog{"Form2"};
  forms::ListBox List1{dialog, "List1"};
  forms::ListBox photo_caption{dialog, "photo_caption"};
  forms::TextBox Text3{dialog, "Text3"};
  ManyImagesAdvice advice;
  std::vector<int> leftOut;
  Paths order;  // what happened, in order
  std::unique_ptr<MultiFiles> form;

  MultiFilesTest() {
    disk.roots = {"C:\\", "D:\\"};
    disk.current = "C:\\photos";
    disk.folders["C:\\"] = {"photos"};
    disk.folders["C:\\photos"] = {"sea"};
    disk.listed["C:\\photos"] = {"b.jpg", "A.BMP", "c.jpeg", "d.dib", "e.gif", "f.png", "g.jif", "h.txt"};
    disk.listed["C:\\photos\\sea"] = {"wave.gif"};
    disk.listed["D:\\"] = {"root.gif"};
    List1.onClick = [this] { order.push_back("selected " + std::to_string(List1.listIndex())); };
    Text3.onChange = [this] { order.push_back("total " + Text3.text()); };
  }

  MultiFiles& open() {
    form = std::make_unique<MultiFiles>(
        PictureTarget{List1, photo_caption, Text3, advice,
                      [](const std::string& path) {
                        return path.size() > 30 ? std::nullopt : std::optional<std::string>(path);
                      },
                      [this](int count) { leftOut.push_back(count); }},
        disk, dialogs, windows);
    windows.show(*form);
    return *form;
  }
  bool isOpen() { return form->host() != nullptr; }
};

TEST_F(MultiFilesTest, TheListsStartOnTheCurrentDriveAndFolder) {
  MultiFiles& opened = open();
  EXPECT_EQ(opened.drvDrives.drive(), "C:\\");
  EXPECT_EQ(opened.dirDirectories.path(), "C:\\photos");
  EXPECT_EQ(opened.filFilenames.path(), "C:\\photos");
  EXPECT_EQ(opened.filFilenames.pattern(), "*.bmp;*.gif;*.dib;*.jpeg;*.jpg");
  EXPECT_EQ(opened.filFilenames.files(), (Paths{"A.BMP", "b.jpg", "c.jpeg", "d.dib", "e.gif"}));
}

TEST_F(MultiFilesTest, AnotherFolderShowsItsFilesAndAnotherDriveItsRoot) {
  MultiFiles& opened = open();
  opened.dirDirectories.userOpened(2);
  EXPECT_EQ(opened.dirDirectories.path(), "C:\\photos\\sea");
  EXPECT_EQ(opened.filFilenames.files(), Paths{"wave.gif"});
  opened.drvDrives.userSelected(1);
  EXPECT_EQ(opened.dirDirectories.path(), "D:\\");
  EXPECT_EQ(opened.filFilenames.files(), Paths{"root.gif"});
}

TEST_F(MultiFilesTest, AFolderThatIsOnlySelectedShowsItsFilesAndThoseAreAdded) {
  MultiFiles& opened = open();
  opened.dirDirectories.userSelected(2);
  EXPECT_EQ(opened.filFilenames.files(), Paths{"wave.gif"});
  EXPECT_EQ(opened.dirDirectories.path(), "C:\\photos") << "it is not opened";
  opened.Command1.userClicked();
  EXPECT_EQ(List1.items(), Paths{"C:\\photos\\sea\\wave.gif"});
}

TEST_F(MultiFilesTest, SelectingTheOpenFolderAgainShowsItsOwnFiles) {
  MultiFiles& opened = open();
  opened.dirDirectories.userSelected(2);
  opened.dirDirectories.userSelected(1);
  EXPECT_EQ(opened.filFilenames.path(), "C:\\photos");
}

TEST_F(MultiFilesTest, AllListedFilesComeInTheirOrderWithEmptyCaptions) {
  List1.addItem("first.gif");
  photo_caption.addItem("First");
  open().Command1.userClicked();
  EXPECT_EQ(List1.items(), (Paths{"first.gif", "C:\\photos\\A.BMP", "C:\\photos\\b.jpg", "C:\\photos\\c.jpeg",
                                  "C:\\photos\\d.dib", "C:\\photos\\e.gif"}));
  EXPECT_EQ(photo_caption.items(), (Paths{"First", "", "", "", "", ""}));
  EXPECT_EQ(order, (Paths{"total 6", "selected 5"})) << "the total in bare digits, then the last entry";
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(MultiFilesTest, ARootGetsNoSecondBackslash) {
  MultiFiles& opened = open();
  opened.drvDrives.userSelected(1);
  opened.Command1.userClicked();
  EXPECT_EQ(List1.items(), Paths{"D:\\root.gif"});
}

TEST_F(MultiFilesTest, AFolderWithoutPicturesRewritesTheCountAndCloses) {
  List1.addItem("first.gif");
  photo_caption.addItem("First");
  Text3.setDesignText("Total: 1");
  disk.listed["C:\\photos"] = {"h.txt"};
  open().Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 1);
  EXPECT_EQ(Text3.text(), "1");
  EXPECT_EQ(List1.listIndex(), 0);
  EXPECT_FALSE(isOpen());
}

TEST_F(MultiFilesTest, AFolderWithoutPicturesDoesNotDisturbAnEmptyList) {
  disk.listed["C:\\photos"] = {};
  open().Command1.userClicked();
  EXPECT_EQ(order, Paths{"total 0"});
  EXPECT_FALSE(isOpen());
}

TEST_F(MultiFilesTest, AFolderThatCannotBeReadShowsAnEmptyList) {
  MultiFiles& opened = open();
  opened.dirDirectories.setPath("E:\\gone");
  EXPECT_EQ(opened.filFilenames.listCount(), 0);
  opened.Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 0);
}

TEST_F(MultiFilesTest, CancelAndEscapeAddNothing) {
  open().cmdQuit.userClicked();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(order.empty());
  EXPECT_TRUE(form->cmdQuit.isCancel);
}

TEST_F(MultiFilesTest, MoreThan700PicturesBringTheAdviceUnlessItWasGiven) {
  disk.listed["C:\\photos"].assign(700, "x.gif");
  open().Command1.userClicked();
  EXPECT_TRUE(dialogs.messages.empty());
  disk.listed["C:\\photos"] = {"y.gif"};
  open().Command1.userClicked();
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text,
            "It is recommended that the screen saver should have less than 700 loaded images.");
  EXPECT_EQ(dialogs.messages[0].style, 48U);
  EXPECT_TRUE(advice.manyImagesWarned);
  open().Command1.userClicked();
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(MultiFilesTest, TheAdviceComesWhileTheImportIsStillOpen) {
  disk.listed["C:\\photos"].assign(701, "x.gif");
  MultiFiles& opened = open();
  bool wasOpen = false;
  dialogs.whileMessage = [&] { wasOpen = opened.host() != nullptr; };
  opened.Command1.userClicked();
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(wasOpen);
  EXPECT_FALSE(opened.host());
}

TEST_F(MultiFilesTest, PathsThatCannotBeKeptAreLeftOutAndCounted) {
  disk.listed["C:\\photos"] = {"a.gif", std::string(30, 'l') + ".gif", "z.gif",
                               std::string(31, 'l') + ".gif"};
  open().Command1.userClicked();
  EXPECT_EQ(List1.items(), (Paths{"C:\\photos\\a.gif", "C:\\photos\\z.gif"}));
  EXPECT_EQ(photo_caption.listCount(), 2);
  EXPECT_EQ(leftOut, std::vector<int>{2});
}

TEST_F(MultiFilesTest, TwentyThousandFilesComeInAMoment) {
  Paths& files = disk.listed["C:\\photos"];
  files.clear();
  for (int i = 20'000; i > 0; --i) files.push_back("picture " + std::to_string(i) + ".jpg");
  const auto start = std::chrono::steady_clock::now();
  MultiFiles& opened = open();
  dialog.setHost(&windows);
  opened.Command1.userClicked();
  dialog.setHost(nullptr);
  EXPECT_EQ(List1.listCount(), 20'000);
  EXPECT_EQ(photo_caption.listCount(), 20'000);
  EXPECT_EQ(windows.listEdits, 2) << "each list is shown anew once, not twenty thousand times";
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << "under the sanitizers";
}

TEST_F(MultiFilesTest, StandsInTheMiddleOfTheScreen) {
  MultiFiles& opened = open();
  EXPECT_EQ(opened.left(), (windows.screenWidth - opened.width()) / 2);
  EXPECT_EQ(opened.top(), (windows.screenHeight - opened.height()) / 2);
}

TEST_F(MultiFilesTest, TheListsStandTogetherInAFrame) {
  MultiFiles& opened = open();
  for (const forms::Control* list :
       {static_cast<forms::Control*>(&opened.drvDrives), static_cast<forms::Control*>(&opened.dirDirectories),
        static_cast<forms::Control*>(&opened.filFilenames)}) {
    EXPECT_EQ(list->container(), &opened.fraFileControls);
  }
}

}  // namespace
}  // namespace auxwin
