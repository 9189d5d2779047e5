#include "auxwin/multi_files.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/import_desk.h"

namespace auxwin {
namespace {

using support::Paths;

// An import that looks below the folder, and what a person does meanwhile.
struct TreeImport : testing::Test, support::ImportDesk {
  TreeImport() {
    for (const char* file :
         {"2.jpg", "10.jpg", "notes.txt", "x.jif", "b\\sea.gif", "a\\deep\\x.BMP", "a\\1.dib"})
      folders->addFile(std::string("C:\\photos\\") + file);
    open().chkSubfolders.userClicked();
  }
};

TEST_F(TreeImport, TheBoxIsNotCheckedAndWithoutItNoFolderIsLookedInto) {
  MultiFiles& opened = open();
  EXPECT_EQ(opened.chkSubfolders.value(), 0);
  opened.Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 5) << "what the list shows";
  EXPECT_EQ(folders->reads(), 0);
}

TEST_F(TreeImport, AFoldersOwnPicturesComeFirstAndThenThoseOfEachOfItsFolders) {
  List1.addItem("first.gif");
  photo_caption.addItem("First");
  form->Command1.userClicked();
  EXPECT_EQ(List1.items(),
            (Paths{"first.gif", "C:\\photos\\2.jpg", "C:\\photos\\10.jpg", "C:\\photos\\a\\1.dib",
                   "C:\\photos\\a\\deep\\x.BMP", "C:\\photos\\b\\sea.gif"}));
  EXPECT_EQ(photo_caption.items(), (Paths{"First", "", "", "", "", ""}));
  EXPECT_EQ(order, (Paths{"total 6", "selected 5"}));
  EXPECT_EQ(form->addedFolder(), "C:\\photos");
  EXPECT_FALSE(isOpen());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(workers.alive, 0);
}

TEST_F(TreeImport, AFolderThatIsOnlySelectedIsTheOneThatIsLookedInto) {
  folders->addFile("C:\\photos\\sea\\deep\\wave.gif");
  form->dirDirectories.userSelected(2);
  form->Command1.userClicked();
  EXPECT_EQ(List1.items(), Paths{"C:\\photos\\sea\\deep\\wave.gif"});
}

TEST_F(TreeImport, TheFormSaysHowFarItIsAndOnlyCancelTakesInput) {
  workers.delayMs = [] { return std::optional(1000); };
  std::string said;
  bool usable = true;
  bool cancels = false;
  loop.postAfter(500, [&] {
    said = form->lblProgress.caption();
    usable = form->Command1.enabled() || form->chkSubfolders.enabled() || form->filFilenames.takesInput();
    cancels = form->cmdQuit.takesInput();
  });
  form->Command1.userClicked();
  EXPECT_EQ(said, "Looking for images: 0 images in 0 folders so far");
  EXPECT_FALSE(usable);
  EXPECT_TRUE(cancels);
  EXPECT_EQ(List1.listCount(), 5);
}

TEST_F(TreeImport, CancelAddsNothingSaysSoAndLeavesTheFormOpen) {
  workers.delayMs = [] { return std::optional<int>(); };  // a share that does not answer
  loop.postAfter(500, [&] { form->cmdQuit.userClicked(); });
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(order.empty());
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(form->lblProgress.caption(), "Cancelled: no images were added.");
  EXPECT_TRUE(form->Command1.enabled() && form->chkSubfolders.enabled() && form->filFilenames.takesInput());
  EXPECT_EQ(form->addedFolder(), "");
  EXPECT_EQ(workers.alive, 0) << "nobody waits for the share";
  workers.comeBack();
  EXPECT_EQ(List1.listCount(), 0) << "it comes back to nobody";
  workers.delayMs = [] { return std::optional(20); };
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 5) << "it can be tried again";
}

TEST_F(TreeImport, CancelledTwiceTheFormCloses) {
  loop.postAfter(5, [&] { form->cmdQuit.userClicked(); });
  form->Command1.userClicked();
  ASSERT_TRUE(isOpen());
  form->cmdQuit.userClicked();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(List1.listCount(), 0);
}

TEST_F(TreeImport, AFormThatIsClosedMeanwhileAddsNothing) {
  loop.postAfter(5, [&] { windows.unload(*form); });
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(order.empty());
}

TEST_F(TreeImport, TheEndOfTheProgramIsTheEndOfTheImport) {
  workers.delayMs = [] { return std::optional<int>(); };
  loop.postAfter(5, [&] { loop.quit(); });
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(order.empty());
}

TEST_F(TreeImport, AFolderThatCannotBeReadIsSaidAndNothingIsAdded) {
  folders->setAway("C:\\photos", true);
  form->Command1.userClicked();
  EXPECT_EQ(form->lblProgress.caption(), "The folder cannot be read.");
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(List1.listCount(), 0);
}

TEST_F(TreeImport, FoldersThatArePassedOverAreSaid) {
  folders->setAway("C:\\photos\\b", true);
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 4);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "1 folder could not be read. The images in it were not added.");
  EXPECT_EQ(dialogs.messages[0].style, 48U);
  folders->setAway("C:\\photos\\a", true);
  open().chkSubfolders.userClicked();
  form->Command1.userClicked();
  EXPECT_EQ(dialogs.messages.back().text, "2 folders could not be read. The images in them were not added.");
}

TEST_F(TreeImport, ATreeWithoutPicturesRewritesTheCountAndCloses) {
  folders->addFile("D:\\empty\\deep\\notes.txt");
  form->filFilenames.setPath("D:\\empty");
  form->Command1.userClicked();
  EXPECT_EQ(order, Paths{"total 0"});
  EXPECT_FALSE(isOpen());
}

TEST_F(TreeImport, AnErrorOfTheSearchLeavesTheFormAsItWas) {
  struct Failing : support::FakeFolderReader {
    void sortNames(Paths&) override { throw std::bad_alloc(); }
  };
  folders = std::make_shared<Failing>();
  folders->addFile("C:\\photos\\1.jpg");
  open().chkSubfolders.userClicked();
  EXPECT_THROW(form->Command1.userClicked(), std::bad_alloc);
  EXPECT_EQ(List1.listCount(), 0);
  EXPECT_TRUE(form->Command1.enabled());
  EXPECT_EQ(form->lblProgress.caption(), "");
}

TEST_F(TreeImport, PathsThatCannotBeKeptAreLeftOutAndCounted) {
  folders->addFile("C:\\photos\\a\\" + std::string(30, 'l') + ".gif");
  form->Command1.userClicked();
  EXPECT_EQ(List1.listCount(), 5);
  EXPECT_EQ(leftOut, std::vector<int>{1});
}

}  // namespace
}  // namespace auxwin
