#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;
constexpr base::PixelSize kSize{200, 100};

// The first picture that comes.
base::Pixel FirstColour() {
  base::Pixel seen = 0;
  e2e::WaitFor(
      [&] {
        seen = e2e::MiddlePixel();
        return seen == kRedPixel || seen == kGreenPixel || seen == kBluePixel;
      },
      e2e::kLongShowMs);
  return seen;
}

// The next `count` pictures, each when it has taken the place of the one before.
std::vector<base::Pixel> NextColours(int count) {
  std::vector<base::Pixel> colours;
  base::Pixel before = e2e::MiddlePixel();
  e2e::WaitFor(
      [&] {
        const base::Pixel now = e2e::MiddlePixel();
        if (now != before && (now == kRedPixel || now == kGreenPixel || now == kBluePixel))
          colours.push_back(now);
        if (now == kRedPixel || now == kGreenPixel || now == kBluePixel) before = now;
        return static_cast<int>(colours.size()) == count;
      },
      60000);
  return colours;
}

std::string Content(const std::wstring& path) {
  std::string content;
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return content;
  content.resize(GetFileSize(file, nullptr));
  DWORD got = 0;
  ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &got, nullptr);
  CloseHandle(file);
  return content;
}

// Whether the index comes to be without a name. It is opened only when it has been written: one that is just
// being read cannot be replaced, and the show writes it elsewhere.
bool LeavesTheIndex(const e2e::ProgramFolder& folder, const std::string& name) {
  const std::wstring path = folder.path() + L"\\lumora.index";
  FILETIME looked{};
  return e2e::WaitFor(
      [&] {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
        if (CompareFileTime(&looked, &data.ftLastWriteTime) == 0) return false;
        looked = data.ftLastWriteTime;
        const std::string content = Content(path);
        return !content.empty() && content.find(name) == std::string::npos;
      },
      e2e::kLongShowMs);
}

TEST(FollowedFolders, FilesThatComeGoAndAreRenamedDuringTheShowJoinAndLeaveIt) {
  e2e::ProgramFolder folder;
  const std::wstring pictures = folder.path() + L"\\pictures";
  CreateDirectoryW(pictures.c_str(), nullptr);
  CreateDirectoryW((pictures + L"\\deep").c_str(), nullptr);
  folder.writeBitmap("pictures\\deep\\red.bmp", kSize, base::Rgb(255, 0, 0));
  folder.set("folders/0", os::FromWide(pictures));
  folder.set("extras/subfolders", "1");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel, e2e::kLongShowMs))
      << "the list is empty but for the folder's picture";
  folder.writeBitmap("pictures\\green.bmp", kSize, base::Rgb(0, 255, 0));
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel, e2e::kLongShowMs)) << "a new file joins";
  folder.writeBitmap("pictures\\deep\\blue.tmp", kSize, base::Rgb(0, 0, 255));
  MoveFileW((pictures + L"\\deep\\blue.tmp").c_str(), (pictures + L"\\deep\\blue.bmp").c_str());
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel, e2e::kLongShowMs))
      << "a file that is a picture by its new name joins";
  // While the show reads it, it cannot be deleted.
  EXPECT_TRUE(
      e2e::WaitFor([&] { return DeleteFileW((pictures + L"\\deep\\red.bmp").c_str()) != FALSE; }, 10000));
  ASSERT_TRUE(LeavesTheIndex(folder, "red.bmp"));
  NextColours(2);  // what was next before the news
  const std::vector<base::Pixel> colours = NextColours(4);
  EXPECT_EQ(std::count(colours.begin(), colours.end(), kRedPixel), 0) << "a deleted one has left";
  EXPECT_EQ(std::count(colours.begin(), colours.end(), kGreenPixel), 2);
  EXPECT_EQ(std::count(colours.begin(), colours.end(), kBluePixel), 2);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

TEST(FollowedFolders, AFolderThatIsNotThereHoldsNothingUp) {
  e2e::ProgramFolder folder;
  folder.addPicture(kSize, base::Rgb(255, 0, 0));
  folder.set("folders/0", "Q:\\nothing\\here");
  folder.set("folders/1", "\\\\no-such-server\\share");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel, e2e::kLongShowMs));
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(show.exitCode(), 0U);
}

// Three pictures, and a show that goes on where the last one ended.
class ResumedShow : public testing::Test {
 protected:
  void SetUp() override {
    folder.addPicture(kSize, base::Rgb(255, 0, 0));
    folder.addPicture(kSize, base::Rgb(0, 255, 0));
    folder.addPicture(kSize, base::Rgb(0, 0, 255));
    folder.set("extras/resume", "1");
    folder.set("image/timeInterval", "2");
    folder.writeSettings();
    settings = folder.readSettingsFile();
  }

  e2e::ProgramFolder folder;
  std::string settings;
};

TEST_F(ResumedShow, BeginsWithThePictureAfterTheLastOne) {
  {
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    EXPECT_EQ(FirstColour(), kRedPixel);
    ASSERT_TRUE(e2e::MiddleComesToBe(kGreenPixel, e2e::kLongShowMs));
    EXPECT_TRUE(show.endsByKey());
  }
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_EQ(FirstColour(), kBluePixel);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(folder.readSettingsFile(), settings) << "the settings file is not written by the show";
}

// Ends a show at its second picture in some way; the next one has to begin with the third.
struct EndedShow : ResumedShow {
  void showEndsBy(const std::function<void(const e2e::RunningProgram&)>& way) {
    {
      e2e::RunningProgram show(folder.program(), L"/S");
      ASSERT_NE(show.waitForShow(), nullptr);
      ASSERT_TRUE(e2e::MiddleComesToBe(kGreenPixel, e2e::kLongShowMs));
      way(show);
      ASSERT_TRUE(show.waitForEnd());
    }
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    EXPECT_EQ(FirstColour(), kBluePixel);
    EXPECT_TRUE(show.endsByKey());
  }
};

TEST_F(EndedShow, ByACrashIsRemembered) {
  showEndsBy([](const e2e::RunningProgram& show) {
    // A thread that begins at an address where nothing is.
    const os::OwnedHandle thread(CreateRemoteThread(
        show.process(), nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(8), nullptr, 0, nullptr));
    EXPECT_TRUE(thread);
  });
}

TEST_F(EndedShow, ByTheEndOfTheSessionIsRemembered) {
  showEndsBy(
      [](const e2e::RunningProgram& show) { SendMessageW(show.waitForShow(), WM_ENDSESSION, TRUE, 0); });
}

TEST_F(EndedShow, ByACloseRequestOfAnotherProgramIsRemembered) {
  showEndsBy([](const e2e::RunningProgram& show) { PostMessageW(show.waitForShow(), WM_CLOSE, 0, 0); });
}

TEST_F(EndedShow, ByTheEndOfItsMessagesIsRemembered) {
  showEndsBy([](const e2e::RunningProgram& show) {
    PostThreadMessageW(GetWindowThreadProcessId(show.waitForShow(), nullptr), WM_QUIT, 0, 0);
  });
}

TEST_F(ResumedShow, AShowThatIsKilledLeavesWhatWasRememberedBefore) {
  {
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    ASSERT_TRUE(e2e::MiddleComesToBe(kGreenPixel, e2e::kLongShowMs));
    EXPECT_TRUE(show.endsByKey());
  }
  const std::string state = Content(folder.path() + L"\\lumora.state");
  EXPECT_FALSE(state.empty());
  {
    e2e::RunningProgram show(folder.program(), L"/S");
    ASSERT_NE(show.waitForShow(), nullptr);
    EXPECT_EQ(FirstColour(), kBluePixel);
    TerminateProcess(show.process(), 1);
    EXPECT_TRUE(show.waitForEnd());
  }
  EXPECT_EQ(Content(folder.path() + L"\\lumora.state"), state);
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_EQ(FirstColour(), kBluePixel);
  EXPECT_TRUE(show.endsByKey());
}

}  // namespace
