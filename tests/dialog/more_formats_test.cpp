// Pictures of every format that the system can decode, chosen and imported.
#include <gtest/gtest.h>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Listed;
using Names = std::vector<std::string>;

struct MoreFormats : testing::Test {
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;

  void open(const std::string& value) {
    machine.folders->endings = {".PNG", ".jpg", ".tiff", ".tif", "no ending", ".a|b", ".*"};
    machine.setPictures({{"a.gif", "A"}});
    if (!value.empty()) machine.set("extras", "moreFormats", value);
    dialog = &machine.openDialog();
  }
  auxwin::MultiFiles& import() {
    machine.windows.whileModal = [](forms::Form&) {};
    dialog->form.FolderCommand.userClicked();
    return *dialog->folderImport;
  }
};

constexpr char kDocumentedFilter[] =
    "Image files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|CompuServe Files (*.gif)|*.gif|"
    "Jpeg Files (*.jpg)|*.jpg|Jif files (*.jif)|*.jif|Windows Bitmap Files (*.bmp)|*.bmp|"
    "Windows DIB files (*.dib)|*.dib";

TEST_F(MoreFormats, WithoutTheKeyOneFileOfTheDocumentedFormatsIsAskedFor) {
  for (const char* value : {"", "0", "yes"}) {
    open(value);
    machine.dialogs.fileRequests.clear();
    dialog->form.add.userClicked();
    ASSERT_EQ(machine.dialogs.fileRequests.size(), 1U);
    EXPECT_EQ(machine.dialogs.fileRequests[0].filter, kDocumentedFilter);
    EXPECT_TRUE(machine.dialogs.severalRequests.empty());
    EXPECT_EQ(import().filFilenames.pattern(), "*.bmp;*.gif;*.dib;*.jpeg;*.jpg");
  }
}

TEST_F(MoreFormats, AFurtherFilterStandsBehindTheDocumentedOnes) {
  open("1");
  dialog->form.add.userClicked();
  ASSERT_EQ(machine.dialogs.severalRequests.size(), 1U);
  const forms::OpenFileRequest& request = machine.dialogs.severalRequests[0];
  EXPECT_EQ(request.filter, std::string(kDocumentedFilter) +
                                "|All pictures|*.bmp;*.gif;*.dib;*.jpeg;*.jpg;*.jif;*.png;*.tif;*.tiff");
  EXPECT_EQ(request.title, "Select a file to open");
  EXPECT_EQ(request.flags, forms::kFileMustExist | forms::kHideReadOnly);
  EXPECT_TRUE(machine.dialogs.fileRequests.empty());
  EXPECT_EQ(Listed(*dialog), "a.gif=A;") << "cancelled";
}

TEST_F(MoreFormats, SeveralFilesAreAddedInTheOrderOfTheirNamesWithTheLastSelected) {
  open("1");
  machine.dialogs.several.push_back({"C:\\p\\10.png", "C:\\p\\2.tif", "C:\\p\\1.png"});
  machine.pictures.add("C:\\p\\10.png", {4, 3}, 0);
  dialog->form.add.userClicked();
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\p\\1.png=;C:\\p\\2.tif=;C:\\p\\10.png=;");
  EXPECT_EQ(dialog->form.List1.listIndex(), 3);
  EXPECT_EQ(dialog->form.Text3.text(), "Total: 4");
  EXPECT_NE(dialog->form.photo1.picture(), nullptr) << "the selected one is shown";
  EXPECT_TRUE(machine.dialogs.messages.empty());
}

TEST_F(MoreFormats, OfSeveralFilesThoseWhosePathsAreTooLongAreCountedInOneMessage) {
  open("1");
  machine.dialogs.several.push_back(
      {"C:\\" + std::string(300, 'x') + ".png", "C:\\" + std::string(300, 'y') + ".png", "C:\\z.png"});
  machine.pictures.add("C:\\z.png", {4, 3}, 0);
  dialog->form.add.userClicked();
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\z.png=;");
  ASSERT_EQ(machine.dialogs.messages.size(), 1U);
  EXPECT_TRUE(machine.dialogs.messages[0].text.starts_with("2 images were left out"));
}

TEST_F(MoreFormats, TheImportAndAFolderThatIsDroppedListThemAll) {
  open("1");
  machine.files.listed["C:\\"] = {"1.png", "2.TIF", "3.jif", "4.txt", "5.jpg"};
  EXPECT_EQ(import().filFilenames.files(), (Names{"1.png", "2.TIF", "3.jif", "5.jpg"}));
  dialog->form.List1.onFilesDropped({"C:\\"});
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\1.png=;C:\\2.TIF=;C:\\3.jif=;C:\\5.jpg=;");
}

TEST_F(MoreFormats, TheImportTakesThemFromBelowTheFolderToo) {
  open("1");
  machine.folders->addFile("C:\\deep\\1.png");
  machine.folders->addFile("C:\\deep\\2.txt");
  machine.windows.whileModal = [](forms::Form& form) {
    auto& import = static_cast<auxwin::MultiFiles&>(form);
    import.chkSubfolders.userClicked();
    import.Command1.userClicked();
  };
  dialog->form.FolderCommand.userClicked();
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\deep\\1.png=;");
  EXPECT_EQ(dialog->form.Text3.text(), "2") << "bare digits";
  machine.windows.whileModal = [](forms::Form& form) {
    EXPECT_EQ(static_cast<auxwin::MultiFiles&>(form).chkSubfolders.value(), 1) << "as the last time";
  };
  dialog->form.FolderCommand.userClicked();
}

TEST_F(MoreFormats, WhereTheSystemCannotBeAskedTheDocumentedFormatsAreAll) {
  machine.folders = nullptr;
  machine.setPictures({{"a.gif", "A"}});
  machine.set("extras", "moreFormats", "1");
  dialog = &machine.openDialog();
  EXPECT_EQ(import().filFilenames.pattern(), "*.bmp;*.gif;*.dib;*.jpeg;*.jpg");
}

}  // namespace
}  // namespace dialog
