#include "auxwin/multi_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "support/import_desk.h"

namespace auxwin {
namespace {

using support::Paths;

struct MultiFilesTest : testing::Test, support::ImportDesk {};

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

TEST_F(MultiFilesTest, TwentyThousandFilesComeInOneEditOfEachList) {
  Paths& files = disk.listed["C:\\photos"];
  files.clear();
  for (int i = 20'000; i > 0; --i) files.push_back("picture " + std::to_string(i) + ".jpg");
  MultiFiles& opened = open();
  dialog.setHost(&windows);
  opened.Command1.userClicked();
  dialog.setHost(nullptr);
  EXPECT_EQ(List1.listCount(), 20'000);
  EXPECT_EQ(photo_caption.listCount(), 20'000);
  EXPECT_EQ(windows.listEdits, 2) << "each list is shown anew once, not twenty thousand times";
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

TEST_F(MultiFilesTest, PatternsThatAreGivenSayWhatIsListed) {
  patterns = "*.bmp;*.png";
  disk.listed["C:\\photos"] = {"a.bmp", "b.jpg", "c.PNG"};
  EXPECT_EQ(open().filFilenames.files(), (Paths{"a.bmp", "c.PNG"}));
}

TEST_F(MultiFilesTest, ALongListOfFilesSaysHowFarItIsAndCanBeCancelled) {
  disk.listed["C:\\photos"].assign(1000, "x.gif");
  open();
  std::string said;
  loop.post([&] {
    said = form->lblProgress.caption();
    form->cmdQuit.userClicked();
  });
  form->Command1.userClicked();
  EXPECT_EQ(said, "Adding: 250 of 1000 images");
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(form->lblProgress.caption(), "Cancelled: no images were added.");
}

TEST_F(MultiFilesTest, WithoutAReaderNobodyLooksBelowFolders) {
  folders = nullptr;
  EXPECT_FALSE(open().chkSubfolders.enabled());
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 5);
}

TEST_F(MultiFilesTest, NothingOverlapsAndEverythingLiesInsideTheForm) {
  MultiFiles& opened = open();
  const auto& controls = opened.controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const forms::Control& a = *controls[i];
    const float width = a.container() ? a.container()->width() : opened.clientWidth();
    const float height = a.container() ? a.container()->height() : opened.clientHeight();
    EXPECT_LE(a.left() + a.width(), width) << a.name();
    EXPECT_LE(a.top() + a.height(), height) << a.name();
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const forms::Control& b = *controls[j];
      if (a.container() != b.container()) continue;
      EXPECT_TRUE(a.pixelRect().intersected(b.pixelRect()).isEmpty()) << a.name() << " and " << b.name();
    }
  }
}

// The documented controls stand where they stood before the import could look below a folder.
TEST_F(MultiFilesTest, TheDocumentedControlsKeepTheirPlaces) {
  MultiFiles& opened = open();
  const auto place = [](const forms::Control& control) { return control.pixelRect(); };
  EXPECT_EQ(place(opened.fraFileControls), (base::PixelRect{12, 12, 476, 312}));
  EXPECT_EQ(place(opened.drvDrives), (base::PixelRect{16, 26, 216, 24}));
  EXPECT_EQ(place(opened.dirDirectories), (base::PixelRect{16, 58, 216, 238}));
  EXPECT_EQ(place(opened.filFilenames), (base::PixelRect{244, 26, 216, 270}));
  EXPECT_EQ(place(opened.Command1), (base::PixelRect{250, 334, 132, 26}));
  EXPECT_EQ(place(opened.cmdQuit), (base::PixelRect{390, 334, 98, 26}));
}

TEST_F(MultiFilesTest, NoMnemonicIsThereTwiceAndEveryButtonHasItsToolTip) {
  std::string letters;
  for (const forms::Control* control : open().controls()) {
    const auto* captioned = dynamic_cast<const forms::CaptionedControl*>(control);
    if (!captioned) continue;
    const std::size_t mark = captioned->caption().find('&');
    if (mark == std::string::npos) continue;
    letters += static_cast<char>(std::toupper(captioned->caption().at(mark + 1)));
    EXPECT_NE(control->toolTip(), "") << control->name();
  }
  std::ranges::sort(letters);
  EXPECT_EQ(letters, "ACS");
}

}  // namespace
}  // namespace auxwin
