#include "os/files_win.h"

#include <windows.h>

#include <list>
#include <memory>
#include <thread>

#include "os/utf16_win.h"
#include "support/files_contract.h"
#include "support/temporary_folder_win.h"

namespace support {

namespace {

// A file that this process keeps open; `sharing` says what others may do with it meanwhile.
class OpenFile {
 public:
  OpenFile(const std::string& path, DWORD sharing)
      : handle_(CreateFileW(os::ToWide(path).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0,
                            nullptr)) {}
  ~OpenFile() { CloseHandle(handle_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

 private:
  HANDLE handle_;
};

struct RealPlace {
  TemporaryFolder temporary;
  os::FilesWin disk;
  std::list<OpenFile> open;
  os::Files& files() { return disk; }
  std::string folder() { return temporary.path(); }
  void lock(const std::string& path) { open.emplace_back(path, 0); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(System, FilesContract, RealPlace);

// Sets the moment of a file's last change, by the user's time zone as it was on that day.
void SetChanged(const std::string& path, const os::LocalTime& moment) {
  const auto word = [](int value) { return static_cast<WORD>(value); };
  const SYSTEMTIME local{.wYear = word(moment.year),
                         .wMonth = word(moment.month),
                         .wDayOfWeek = 0,  // not read
                         .wDay = word(moment.day),
                         .wHour = word(moment.hour),
                         .wMinute = word(moment.minute),
                         .wSecond = word(moment.second),
                         .wMilliseconds = 0};
  SYSTEMTIME universal{};
  FILETIME time{};
  ASSERT_NE(TzSpecificLocalTimeToSystemTime(nullptr, &local, &universal), FALSE);
  ASSERT_NE(SystemTimeToFileTime(&universal, &time), FALSE);
  const HANDLE file =
      CreateFileW(os::ToWide(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  EXPECT_NE(SetFileTime(file, nullptr, nullptr, &time), FALSE);
  CloseHandle(file);
}

TEST(FilesWin, AFileWasChangedByTheUsersClockInSummerAndInWinter) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  const std::string path = temporary.path() + "\\a.jpg";
  ASSERT_TRUE(files.replace(path, "pixels"));
  for (const os::LocalTime& moment :
       {os::LocalTime{2019, 7, 14, 18, 5, 9, 0}, os::LocalTime{2020, 1, 31, 0, 0, 0, 0}}) {
    SetChanged(path, moment);
    EXPECT_EQ(files.changedAt(path), moment);
  }
}

TEST(FilesWin, WorkBeyond260Characters) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  std::string folder = temporary.path();
  while (folder.size() < 400) {
    folder += "\\a folder with fifty characters in its long name.";
    folder.back() = 'x';
    ASSERT_NE(CreateDirectoryW((L"\\\\?\\" + os::ToWide(folder)).c_str(), nullptr), FALSE);
  }
  const std::string path = folder + "\\picture.jpg";
  EXPECT_TRUE(files.replace(path, "old"));
  EXPECT_TRUE(files.replace(path, "pixels"));
  EXPECT_EQ(files.read(path), "pixels");
  EXPECT_TRUE(files.exists(path));
  EXPECT_TRUE(files.changedAt(path));
  EXPECT_EQ(files.readHead(path, 3), "pix");
  ASSERT_NE(CreateDirectoryW((L"\\\\?\\" + os::ToWide(folder + "\\inner")).c_str(), nullptr), FALSE);
  EXPECT_TRUE(files.canWriteIn(folder));
  EXPECT_EQ(files.filesIn(folder), std::vector<std::string>{"picture.jpg"});
  EXPECT_EQ(files.foldersIn(folder), std::vector<std::string>{"inner"});
}

TEST(FilesWin, ANameThatOnlyJustFitsLeavesRoomForTheFileBeside) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  for (std::size_t length = 235; length < 262; ++length) {
    std::string path = temporary.path() + '\\';
    path += std::string(length - path.size(), 'n');
    EXPECT_TRUE(files.replace(path, "content")) << length;
    EXPECT_EQ(files.read(path), "content") << length;
  }
  EXPECT_EQ(files.filesIn(temporary.path()).size(), 27U);
}

TEST(FilesWin, AFolderThatIsNotThereCannotBeWritten) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  EXPECT_FALSE(files.canWriteIn(temporary.path() + "\\missing"));
  EXPECT_FALSE(files.replace(temporary.path() + "\\missing\\a.ini", "x"));
}

TEST(FilesWin, AFileThatMayOnlyBeReadKeepsItsContentAndNothingIsLeftBeside) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  const std::string path = temporary.path() + "\\a.ini";
  ASSERT_TRUE(files.replace(path, "old"));
  ASSERT_NE(SetFileAttributesW(os::ToWide(path).c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
  EXPECT_FALSE(files.replace(path, "new"));
  EXPECT_EQ(files.read(path), "old");
  EXPECT_EQ(files.filesIn(temporary.path()).size(), 1U);
  SetFileAttributesW(os::ToWide(path).c_str(), FILE_ATTRIBUTE_NORMAL);
}

// Holds a file as a virus scanner does, for a while, on a thread of its own.
class Holder {
 public:
  Holder(const std::string& path, DWORD milliseconds) {
    started_ = std::make_unique<OpenFile>(path, FILE_SHARE_READ);
    thread_ = std::thread([this, milliseconds] {
      Sleep(milliseconds);  // how long it holds the file
      started_.reset();
    });
  }
  ~Holder() { thread_.join(); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  std::unique_ptr<OpenFile> started_;
  std::thread thread_;
};

TEST(FilesWin, AFileThatIsHeldForLessThanTwoSecondsIsReplacedWhenItIsFree) {
  const TemporaryFolder temporary;
  os::FilesWin files(os::kSavePatienceMs);
  const std::string path = temporary.path() + "\\a.ini";
  ASSERT_TRUE(files.replace(path, "old"));
  const Holder scanner(path, 900);
  EXPECT_TRUE(files.replace(path, "new"));
  EXPECT_EQ(files.read(path), "new");
  EXPECT_EQ(files.filesIn(temporary.path()).size(), 1U);
}

TEST(FilesWin, AFileThatIsHeldForGoodKeepsItsContentAndNothingIsLeftBeside) {
  const TemporaryFolder temporary;
  os::FilesWin files(300);
  const std::string path = temporary.path() + "\\a.ini";
  ASSERT_TRUE(files.replace(path, "old"));
  const OpenFile held(path, FILE_SHARE_READ);
  EXPECT_FALSE(files.replace(path, "new"));
  EXPECT_EQ(files.read(path), "old");
  EXPECT_EQ(files.filesIn(temporary.path()).size(), 1U);
}

TEST(FilesWin, WhoHasNoPatienceIsRefusedWhileAFileIsHeld) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  const std::string path = temporary.path() + "\\a.ini";
  ASSERT_TRUE(files.replace(path, "old"));
  const OpenFile held(path, FILE_SHARE_READ);
  const ULONGLONG start = GetTickCount64();
  EXPECT_FALSE(files.replace(path, "new"));
  EXPECT_LT(GetTickCount64() - start, 1500U) << "it does not try for two seconds";
  EXPECT_EQ(files.read(path), "old");
  EXPECT_EQ(files.filesIn(temporary.path()).size(), 1U);
}

TEST(FilesWin, AReaderThatOpenedTheOldFileReadsItToItsEnd) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  const std::string path = temporary.path() + "\\a.ini";
  ASSERT_TRUE(files.replace(path, "old content"));
  const HANDLE reader =
      CreateFileW(os::ToWide(path).c_str(), GENERIC_READ,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
  files.replace(path, "new");
  char buffer[32] = {};
  DWORD got = 0;
  ASSERT_NE(ReadFile(reader, buffer, sizeof(buffer), &got, nullptr), FALSE);
  CloseHandle(reader);
  EXPECT_EQ(std::string(buffer, got), "old content");
}

TEST(FilesWin, AFolderInsideAFolderIsNotListed) {
  const TemporaryFolder temporary;
  os::FilesWin files;
  CreateDirectoryW(os::ToWide(temporary.path() + "\\inner").c_str(), nullptr);
  ASSERT_TRUE(files.replace(temporary.path() + "\\inner\\a.jpg", "x"));
  EXPECT_TRUE(files.filesIn(temporary.path()).empty());
  EXPECT_EQ(files.filesIn(temporary.path() + "\\inner\\").size(), 1U);
}

TEST(FilesWin, NamesSortAsPeopleSortThem) {
  os::FilesWin files;
  std::vector<std::string> names{"picture 10.jpg", "Zoo.jpg",  "\xC3\xA9tude.jpg",
                                 "picture 2.jpg",  "east.jpg", "fox.jpg"};
  files.sortNames(names);
  EXPECT_EQ(names, (std::vector<std::string>{"east.jpg", "\xC3\xA9tude.jpg", "fox.jpg", "picture 2.jpg",
                                             "picture 10.jpg", "Zoo.jpg"}));
}

TEST(FilesWin, TheUsersPicturesLieInAFolderThatCanBeEntered) {
  os::FilesWin files;
  const std::string before = files.currentFolder();
  const std::string pictures = files.picturesFolder();
  EXPECT_NE(pictures, "");
  EXPECT_FALSE(files.enterFolder(pictures + "\\a folder that is not there"));
  EXPECT_EQ(files.currentFolder(), before);
  EXPECT_FALSE(files.enterFolder(""));
}

}  // namespace

}  // namespace support
