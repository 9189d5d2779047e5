// Keys in the show, as the program takes them from the system: [extras] keys.
#include <gtest/gtest.h>
#include <windows.h>
#include <winternl.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "e2e/keyboard.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;
constexpr base::Pixel kBand = 0xFF181A1EU;  // behind notes

bool ScreenComesToShow(const std::function<bool(const base::Bitmap&)>& what) {
  return e2e::WaitFor([&] { return what(e2e::ReadScreen()); });
}

// Red, green and blue in order, each for a minute.
class KeysTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.addPicture({300, 200}, base::Rgb(255, 0, 0));
    folder.addPicture({300, 200}, base::Rgb(0, 255, 0));
    folder.addPicture({300, 200}, base::Rgb(0, 0, 255));
    folder.set("image/timeInterval", "60");
    folder.set("extras/keys", "1");
  }
  void start() {
    folder.writeSettings();
    show = std::make_unique<e2e::RunningProgram>(folder.program(), L"/S");
    ASSERT_NE(show->waitForShow(), nullptr);
    ASSERT_TRUE(e2e::MiddleComesToBe(kRedPixel));
  }
  // A key that comes before the window has the keyboard is somebody else's.
  void press(WORD key) {
    ASSERT_TRUE(e2e::WaitForKeyboard(show->waitForShow()));
    e2e::PressKey(key);
  }
  bool showsNotes() {
    return ScreenComesToShow(
        [](const base::Bitmap& screen) { return !e2e::BoundsOf(screen, kBand).isEmpty(); });
  }
  bool showsNoNotes() {
    return ScreenComesToShow(
        [](const base::Bitmap& screen) { return e2e::BoundsOf(screen, kBand).isEmpty(); });
  }

  e2e::ProgramFolder folder;
  std::unique_ptr<e2e::RunningProgram> show;
};

TEST_F(KeysTest, StepThroughTheShowAndEscapeEndsIt) {
  start();
  press(VK_RIGHT);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  press('N');
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel));
  press(VK_PRIOR);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  press('B');
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel));
  press(VK_ESCAPE);
  EXPECT_TRUE(show->waitForEnd());
  EXPECT_EQ(show->exitCode(), 0U);
}

TEST_F(KeysTest, StepWhereThePicturesAreLoadedAheadToo) {
  folder.set("extras/loadAhead", "1");
  start();
  for (const base::Pixel pixel : {kGreenPixel, kBluePixel, kRedPixel}) {
    press(VK_RIGHT);
    EXPECT_TRUE(e2e::MiddleComesToBe(pixel));
  }
  press(VK_LEFT);
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel));
}

TEST_F(KeysTest, HoldThePictureUntilTheShowIsToGoOn) {
  folder.set("image/timeInterval", "2");
  start();
  press(VK_SPACE);
  EXPECT_TRUE(showsNotes());
  const base::Pixel held = e2e::MiddlePixel();
  EXPECT_FALSE(e2e::WaitFor([held] { return e2e::MiddlePixel() != held; }, 6000));
  EXPECT_TRUE(showsNoNotes()) << "the sign has gone";
  press(VK_SPACE);
  EXPECT_TRUE(e2e::WaitFor([held] { return e2e::MiddlePixel() != held; }, 10000));
}

TEST_F(KeysTest, TellAboutThePictureAndShowTheKeys) {
  start();
  press('I');
  EXPECT_TRUE(showsNotes());
  EXPECT_EQ(e2e::MiddlePixel(), kRedPixel) << "in a corner";
  press('I');
  EXPECT_TRUE(showsNoNotes());
  press(VK_F1);
  EXPECT_TRUE(e2e::WaitFor([] { return e2e::MiddlePixel() != kRedPixel; })) << "in the middle";
  EXPECT_TRUE(showsNotes());
  press('H');
  EXPECT_TRUE(e2e::MiddleComesToBe(kRedPixel));
  EXPECT_TRUE(show->isRunning());
}

TEST_F(KeysTest, APictureThatIsPutAwayComesInNoShowAgainAndItsFileStays) {
  start();
  press(VK_DELETE);
  EXPECT_TRUE(showsNotes());
  EXPECT_EQ(e2e::MiddlePixel(), kRedPixel);
  press(VK_DELETE);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  press(VK_RIGHT);
  EXPECT_TRUE(e2e::MiddleComesToBe(kBluePixel));
  press(VK_RIGHT);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  press(VK_ESCAPE);
  EXPECT_TRUE(show->waitForEnd());
  e2e::RunningProgram again(folder.program(), L"/S");
  ASSERT_NE(again.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel)) << "the next show begins with the second";
  EXPECT_NE(GetFileAttributesW((folder.path() + L"\\picture0.bmp").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(KeysTest, WithoutTheSettingEveryOneOfThemEndsTheShow) {
  folder.set("extras/keys", "");
  for (const int key : {VK_RIGHT, VK_LEFT, VK_SPACE, VK_DELETE, VK_RETURN, VK_F1}) {
    start();
    press(static_cast<WORD>(key));
    EXPECT_TRUE(show->waitForEnd(5000)) << key;
    EXPECT_EQ(show->exitCode(), 0U);
  }
}

// Hears of every process that the show starts.
class StartedProcesses {
 public:
  explicit StartedProcesses(HANDLE process)
      : job_(CreateJobObjectW(nullptr, nullptr)),
        port_(CreateIoCompletionPort(INVALID_HANDLE_VALUE, nullptr, 0, 1)) {
    JOBOBJECT_ASSOCIATE_COMPLETION_PORT association{job_.get(), port_.get()};
    SetInformationJobObject(job_.get(), JobObjectAssociateCompletionPortInformation, &association,
                            sizeof(association));
    AssignProcessToJobObject(job_.get(), process);
  }

  // Waits for the next one that is not `known`.
  os::OwnedHandle next(DWORD known) {
    const ULONGLONG end = GetTickCount64() + 15000;
    while (GetTickCount64() < end) {
      DWORD message = 0;
      ULONG_PTR key = 0;
      OVERLAPPED* value = nullptr;
      if (!GetQueuedCompletionStatus(port_.get(), &message, &key, &value, 100)) continue;
      const auto id = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(value));
      if (message == JOB_OBJECT_MSG_NEW_PROCESS && id != known)
        return os::OwnedHandle(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id));
    }
    return os::OwnedHandle();
  }

 private:
  os::OwnedHandle job_;
  os::OwnedHandle port_;
};

// With which a process was started.
std::wstring CommandLineOf(HANDLE process) {
  PROCESS_BASIC_INFORMATION info{};
  NtQueryInformationProcess(process, ProcessBasicInformation, &info, sizeof(info), nullptr);
  PEB peb{};
  RTL_USER_PROCESS_PARAMETERS parameters{};
  SIZE_T got = 0;
  if (!ReadProcessMemory(process, info.PebBaseAddress, &peb, sizeof(peb), &got)) return {};
  if (!ReadProcessMemory(process, peb.ProcessParameters, &parameters, sizeof(parameters), &got)) return {};
  std::wstring line(parameters.CommandLine.Length / sizeof(wchar_t), L'\0');
  ReadProcessMemory(process, parameters.CommandLine.Buffer, line.data(), parameters.CommandLine.Length, &got);
  return line;
}

TEST_F(KeysTest, EndTheShowAndOpenTheFolderOfThePicture) {
  start();
  press(VK_RIGHT);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  StartedProcesses started(show->process());
  press('O');
  const os::OwnedHandle shell = started.next(show->processId());
  EXPECT_TRUE(show->waitForEnd());
  ASSERT_TRUE(shell);
  const std::wstring line = CommandLineOf(shell.get());
  EXPECT_NE(line.find(L"explorer.exe"), std::wstring::npos) << os::FromWide(line);
  EXPECT_NE(line.find(L"/select,\"" + folder.path() + L"\\picture1.bmp\""), std::wstring::npos)
      << os::FromWide(line);
  TerminateProcess(shell.get(), 0);
}

}  // namespace
