#include "os/folder_reader_win.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <thread>

#include "os/utf16_win.h"
#include "support/temporary_folder_win.h"

namespace {

class FolderReaderWinTest : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return folder + '\\' + name; }
  void addFile(const std::string& name, DWORD attributes = FILE_ATTRIBUTE_NORMAL) const {
    CloseHandle(CreateFileW(os::ToWide(path(name)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                            attributes, nullptr));
  }
  void addFolder(const std::string& name, DWORD attributes = 0) const {
    CreateDirectoryW(os::ToWide(path(name)).c_str(), nullptr);
    if (attributes != 0) SetFileAttributesW(os::ToWide(path(name)).c_str(), attributes);
  }

  std::vector<os::FolderEntry> sorted() {
    auto entries = reader.read(folder).value_or(std::vector<os::FolderEntry>{{"unreadable"}});
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return entries;
  }

  support::TemporaryFolder place;
  std::string folder = place.path();
  os::FolderReaderWin reader;
};

TEST_F(FolderReaderWinTest, AFolderHasItsVisibleFilesAndFolders) {
  addFile("1.jpg");
  addFile("hidden.jpg", FILE_ATTRIBUTE_HIDDEN);
  addFile("system.jpg", FILE_ATTRIBUTE_SYSTEM);
  addFile("\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg");
  addFolder("deep");
  addFolder("hidden", FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(sorted(), (std::vector<os::FolderEntry>{
                          {"1.jpg"}, {"deep", true}, {"\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg"}}));
}

TEST_F(FolderReaderWinTest, AnEmptyFolderIsNotAMissingOne) {
  EXPECT_EQ(reader.read(folder), std::vector<os::FolderEntry>());
  EXPECT_EQ(reader.read(folder + '\\'), std::vector<os::FolderEntry>());
  EXPECT_EQ(reader.read(path("missing")), std::nullopt);
  addFile("file");
  EXPECT_EQ(reader.read(path("file")), std::nullopt);
}

TEST_F(FolderReaderWinTest, AFileIsThereHiddenOrNotAndAFolderIsNone) {
  addFile("1.jpg");
  addFile("hidden.jpg", FILE_ATTRIBUTE_HIDDEN);
  addFolder("deep.jpg");
  EXPECT_TRUE(reader.hasFile(path("1.jpg")));
  EXPECT_TRUE(reader.hasFile(path("hidden.jpg")));
  EXPECT_FALSE(reader.hasFile(path("deep.jpg")));
  EXPECT_FALSE(reader.hasFile(path("gone.jpg")));
  EXPECT_FALSE(reader.hasFile(path("gone\\1.jpg")));
}

TEST_F(FolderReaderWinTest, FoldersOfAnyDepthAreRead) {
  std::string deep = folder;
  for (int i = 0; i < 12; ++i) {
    deep += "\\" + std::string(40, 'x');
    CreateDirectoryW((L"\\\\?\\" + os::ToWide(deep)).c_str(), nullptr);
  }
  EXPECT_EQ(reader.read(deep), std::vector<os::FolderEntry>());
  EXPECT_EQ(reader.read(deep + '\\'), std::vector<os::FolderEntry>());
}

TEST_F(FolderReaderWinTest, AFoldersFinalPathIsAPathToIt) {
  addFolder("deep");
  const auto path = reader.finalPath(this->path("deep\\"));
  ASSERT_TRUE(path);
  EXPECT_TRUE(path->ends_with("\\deep")) << *path;
  EXPECT_FALSE(path->starts_with("\\\\?\\")) << *path;
  EXPECT_EQ(reader.finalPath(this->path("missing")), std::nullopt);
}

TEST_F(FolderReaderWinTest, NamesAreSortedAsPeopleSortThem) {
  std::vector<std::string> names = {"10.jpg", "b.jpg", "2.jpg", "A.jpg", "1.jpg"};
  reader.sortNames(names);
  EXPECT_EQ(names, (std::vector<std::string>{"1.jpg", "2.jpg", "10.jpg", "A.jpg", "b.jpg"}));
}

TEST_F(FolderReaderWinTest, TheDecodersNameTheirEndings) {
  const std::vector<std::string> endings = reader.pictureEndings();
  for (const char* ending : {".bmp", ".gif", ".jpg", ".png", ".tif"})
    EXPECT_TRUE(std::find(endings.begin(), endings.end(), ending) != endings.end()) << ending;
}

TEST_F(FolderReaderWinTest, AWatchTellsOfFilesThatComeGoAndAreRenamed) {
  const auto watch = reader.watch(folder, true);
  addFile("1.jpg");
  EXPECT_TRUE(watch->waitForChange(30'000)) << "a file has come";
  while (watch->waitForChange(200)) {
  }
  MoveFileW(os::ToWide(path("1.jpg")).c_str(), os::ToWide(path("2.jpg")).c_str());
  EXPECT_TRUE(watch->waitForChange(30'000)) << "a file has another name";
  while (watch->waitForChange(200)) {
  }
  DeleteFileW(os::ToWide(path("2.jpg")).c_str());
  EXPECT_TRUE(watch->waitForChange(30'000)) << "a file has gone";
}

TEST_F(FolderReaderWinTest, AWatchIsInterruptedFromAnotherThread) {
  const auto watch = reader.watch(folder, false);
  std::thread other([&] { watch->interrupt(); });
  EXPECT_FALSE(watch->waitForChange(600'000));
  EXPECT_FALSE(watch->waitForChange(600'000)) << "for good";
  other.join();
}

TEST_F(FolderReaderWinTest, AFolderThatCannotBeWatchedIsWaitedForAllTheSame) {
  const auto watch = reader.watch(path("missing"), false);
  EXPECT_FALSE(watch->waitForChange(1));
  watch->interrupt();
  EXPECT_FALSE(watch->waitForChange(600'000));
}

}  // namespace
