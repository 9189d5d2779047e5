// Dropped files and paths that are too long for the settings file.
#include <gtest/gtest.h>

#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

using support::Listed;
using Message = support::FakeDialogs::Message;

const Message kOneLeftOut{
    "1 image was left out because its path is longer than 254 characters.\r\nMove it to a folder with a "
    "shorter path and add it again.",
    48};

struct AddingPaths : testing::Test {
  support::SettingsDialogMachine machine;
  SettingsDialog* dialog = nullptr;

  void SetUp() override {
    machine.setPictures({{"a.gif", "A"}});
    dialog = &machine.openDialog();
  }

  // A path of exactly that many characters of the code page to a picture that can be loaded.
  std::string pathOf(std::size_t characters, const std::string& name = "x") {
    std::string path = "C:\\" + name;
    path += std::string(characters - path.size() - 4, 'n') + ".gif";
    addFile(path);
    return path;
  }
  void addFile(const std::string& path) {
    machine.files.content[path] = "pixels";
    machine.pictures.add(path, {40, 30}, base::kBlack);
  }
  void add(const std::string& path) {
    machine.dialogs.files.push_back(path);
    dialog->form.add.userClicked();
  }
  void drop(const std::vector<std::string>& paths) { dialog->form.List1.onFilesDropped(paths); }
  std::vector<Message>& messages() { return machine.dialogs.messages; }
};

TEST_F(AddingPaths, APathOf254CharactersIsKeptAsItIs) {
  const std::string path = pathOf(254);
  add(path);
  EXPECT_EQ(dialog->form.List1.text(), path);
  EXPECT_TRUE(messages().empty());
}

TEST_F(AddingPaths, ALongerPathIsKeptByItsShortNameWhereThatFits) {
  const std::string path = pathOf(255);
  addFile("C:\\XNNNNN~1.GIF");
  machine.files.shortPaths[path] = "C:\\XNNNNN~1.GIF";
  add(path);
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\XNNNNN~1.GIF=;");
  EXPECT_TRUE(messages().empty());
}

TEST_F(AddingPaths, ALongerPathWithoutAShortNameIsLeftOutWithOneMessage) {
  add(pathOf(255));
  EXPECT_EQ(Listed(*dialog), "a.gif=A;");
  EXPECT_EQ(dialog->form.List1.listIndex(), 0);
  EXPECT_EQ(dialog->form.Text3.text(), "Total: 1");
  EXPECT_EQ(messages(), std::vector<Message>{kOneLeftOut});
}

TEST_F(AddingPaths, AShortNameThatIsStillTooLongIsLeftOutToo) {
  const std::string path = pathOf(300);
  machine.files.shortPaths[path] = pathOf(255, "S");
  add(path);
  EXPECT_EQ(Listed(*dialog), "a.gif=A;");
  EXPECT_EQ(messages(), std::vector<Message>{kOneLeftOut});
}

TEST_F(AddingPaths, CharactersOfAnyScriptCountAsTheFileCountsThem) {
  std::string cyrillic = "C:\\";
  while (cyrillic.size() < 3 + 2 * 247) cyrillic += "\xD0\xBB";
  cyrillic += ".gif";
  addFile(cyrillic);
  add(cyrillic);
  EXPECT_EQ(dialog->form.List1.text(), cyrillic) << "254 characters in 501 bytes of UTF-8";
  EXPECT_TRUE(messages().empty());
}

TEST_F(AddingPaths, ABackgroundImageWithALongPathIsLeftOutToo) {
  dialog->form.backgroundCustomImage.userClicked();
  machine.dialogs.files.push_back(pathOf(255));
  dialog->form.addBackImg.userClicked();
  EXPECT_EQ(dialog->form.record.backgroundImage, "");
  EXPECT_EQ(dialog->form.backgroundImageFile.text(), "");
  EXPECT_EQ(messages(), std::vector<Message>{kOneLeftOut});
  const std::string path = pathOf(300);
  machine.files.shortPaths[path] = "C:\\S~1.GIF";
  machine.dialogs.files.push_back(path);
  dialog->form.addBackImg.userClicked();
  EXPECT_EQ(dialog->form.record.backgroundImage, "C:\\S~1.GIF");
}

TEST_F(AddingPaths, DroppedFilesAreAddedInTheirOrderAndTheLastIsSelected) {
  addFile("C:\\b.jpg");
  addFile("C:\\c.bmp");
  machine.rest();
  machine.pictures.opened.clear();
  drop({"C:\\c.bmp", "C:\\b.jpg"});
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\c.bmp=;C:\\b.jpg=;");
  EXPECT_EQ(dialog->form.List1.listIndex(), 2);
  EXPECT_EQ(dialog->form.Text3.text(), "Total: 3");
  EXPECT_EQ(dialog->form.ImagePosition.text(), "Position: 3");
  EXPECT_EQ(machine.pictures.opened, std::vector<std::string>{"C:\\b.jpg"}) << "the others are not decoded";
}

TEST_F(AddingPaths, DroppedFoldersAndNothingDroppedChangeNothing) {
  drop({"C:\\folder"});
  drop({});
  EXPECT_EQ(Listed(*dialog), "a.gif=A;");
  EXPECT_EQ(dialog->form.Text3.text(), "Total: 1");
  EXPECT_TRUE(messages().empty());
}

TEST_F(AddingPaths, ADroppedFolderBringsItsPicturesAsTheFolderImportDoes) {
  for (const char* name : {"z.bmp", "notes.txt", "Y.JPG", "x.png", "b.jpeg"}) {
    addFile(std::string("C:\\folder\\") + name);
  }
  addFile("C:\\folder\\below\\c.gif");
  drop({"C:\\folder"});
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\folder\\b.jpeg=;C:\\folder\\Y.JPG=;C:\\folder\\z.bmp=;");
  EXPECT_EQ(dialog->form.Text3.text(), "Total: 4");
  EXPECT_EQ(dialog->form.List1.listIndex(), 3);
}

TEST_F(AddingPaths, DroppedFilesThatAreNoPicturesAreLeftOut) {
  machine.files.content["C:\\notes.txt"] = "words";
  machine.files.content["C:\\broken.jpg"] = "no pixels";
  addFile("C:\\scan.tif");
  addFile("C:\\p.PNG");
  drop({"C:\\notes.txt", "C:\\scan.tif", "C:\\broken.jpg", "C:\\p.PNG"});
  EXPECT_EQ(Listed(*dialog), "a.gif=A;C:\\scan.tif=;C:\\broken.jpg=;C:\\p.PNG=;");
  drop({"C:\\notes.txt"});
  EXPECT_EQ(dialog->form.List1.listCount(), 4);
  EXPECT_TRUE(messages().empty()) << "what a name promises is not looked into here";
}

TEST_F(AddingPaths, OneMessageTellsOfAllDroppedFilesThatWereLeftOut) {
  drop({pathOf(255), pathOf(100), pathOf(256)});
  EXPECT_EQ(dialog->form.List1.listCount(), 2);
  ASSERT_EQ(messages().size(), 1U);
  EXPECT_EQ(messages()[0].text,
            "2 images were left out because their paths are longer than 254 characters.\r\nMove them to a "
            "folder with a shorter path and add them again.");
  EXPECT_EQ(messages()[0].style, 48U);
}

TEST_F(AddingPaths, ADropOfManyFilesBringsTheAdviceAsAddingDoes) {
  std::vector<std::string> paths(700, "C:\\b.jpg");
  addFile("C:\\b.jpg");
  drop(paths);
  EXPECT_EQ(dialog->form.List1.listCount(), 701);
  ASSERT_EQ(messages().size(), 1U);
  drop({"C:\\b.jpg"});
  EXPECT_EQ(messages().size(), 1U);
}

}  // namespace
}  // namespace dialog
