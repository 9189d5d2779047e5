// The hostile picture set, and hostile places, against the machine's own decoder.
#include "support/hostile/hostile_pictures.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <psapi.h>

#include <algorithm>

#include "os/files_win.h"
#include "os/open_file_win.h"
#include "os/picture_decoder_win.h"
#include "pictures/picture_loader.h"
#include "support/channels.h"
#include "support/hostile/bitmap_files.h"
#include "support/temporary_folder_win.h"
#include "support/wic_encoder_win.h"

namespace pictures {
namespace {

using support::ChannelDistance;

constexpr base::PixelSize kThumbnail{48, 36};
constexpr SIZE_T kMost = SIZE_T{1} << 30;
constexpr int kNear = 4;  // how far a format that loses some brings a colour back

// Bytes of memory that this process has ever held at once. Where the system does not keep the peak of what
// was promised, that of what was used stands in.
SIZE_T PeakMemory() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return std::max(counters.PeakPagefileUsage, counters.PeakWorkingSetSize);
}

class HostilePicturesWin : public testing::Test {
 protected:
  support::ComScope com;
  support::TemporaryFolder folder;
  os::FilesWin heads;
  os::PictureDecoderWin decoder;
  FilePictureLoader loader{heads, decoder};
};

TEST_F(HostilePicturesWin, EachIsDrawnAsItShouldBeOrRefused) {
  int drawnOnes = 0;
  int refusedOnes = 0;
  for (const auto& picture : support::AllHostilePictures()) {
    const auto opened = loader.open(folder.put(picture.name, picture.bytes));
    const auto drawn = opened ? opened->drawnAt(kThumbnail) : nullptr;
    (drawn ? drawnOnes : refusedOnes) += 1;
    if (picture.outcome != support::Outcome::either) {
      EXPECT_EQ(drawn != nullptr, picture.outcome == support::Outcome::drawn) << picture.name;
    }
    if (!drawn) continue;
    EXPECT_EQ(drawn->size(), kThumbnail) << picture.name;
    EXPECT_EQ(opened->size(), picture.size.value_or(opened->size())) << picture.name;
    if (!picture.corners) continue;
    const auto whole = opened->drawnAt(opened->size());
    ASSERT_TRUE(whole) << picture.name;
    EXPECT_LE(ChannelDistance(whole->at(0, 0), picture.corners->topLeft), kNear)
        << picture.name << std::hex << " " << whole->at(0, 0);
    const base::Pixel last = whole->at(opened->size().width - 1, opened->size().height - 1);
    EXPECT_LE(ChannelDistance(last, picture.corners->bottomRight), kNear)
        << picture.name << std::hex << " " << last;
  }
  EXPECT_GT(drawnOnes, 60);
  EXPECT_GT(refusedOnes, 60);
}

TEST_F(HostilePicturesWin, NoneOfThemTakesMoreMemoryThanTheBound) {
  const SIZE_T before = PeakMemory();
  for (const auto& picture : support::AllHostilePictures()) {
    const auto opened = loader.open(folder.put(picture.name, picture.bytes));
    if (opened) opened->drawnAt({320, 200});
    ASSERT_LT(PeakMemory(), std::max(before, kMost)) << picture.name;
  }
}

TEST_F(HostilePicturesWin, TheMeasureOfMemorySeesWhatIsUsed) {
  const SIZE_T before = PeakMemory();
  const std::vector<char> large(before + (SIZE_T{64} << 20), 'x');
  EXPECT_GE(PeakMemory(), large.size());
}

TEST_F(HostilePicturesWin, AFolderWithAPicturesNameIsRefused) {
  const std::string path = folder.path() + "\\x.jpg";
  ASSERT_TRUE(CreateDirectoryW(os::WidePath(path).c_str(), nullptr));
  EXPECT_FALSE(loader.open(path));
}

TEST_F(HostilePicturesWin, ADeviceWithAPicturesNameIsRefused) {
  for (const char* name : {"CON", "CON.jpg", "NUL", "NUL.jpg", "COM1", "COM1.bmp", "AUX.gif", "PRN.png",
                           "LPT1.jpg", "CONIN$", "CONOUT$"}) {
    EXPECT_FALSE(loader.open(name)) << name;
    EXPECT_FALSE(loader.open(folder.path() + "\\" + name)) << name;
  }
  for (const char* path : {"\\\\.\\CON", "\\\\.\\NUL", "\\\\.\\C:", "\\\\.\\PhysicalDrive0",
                           "\\\\.\\pipe\\none.jpg", "\\\\?\\", "\\\\", "\\", "C:", "C:\\", "..", "."}) {
    EXPECT_FALSE(loader.open(path)) << path;
  }
}

TEST_F(HostilePicturesWin, ANamedPipeIsNotWaitedFor) {
  const std::wstring name = L"\\\\.\\pipe\\lumora-test-" + std::to_wstring(GetCurrentProcessId());
  const HANDLE pipe =
      CreateNamedPipeW(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_WAIT, 1, 0, 0, 0, nullptr);
  ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
  const os::FileHandle owner(pipe);
  EXPECT_FALSE(loader.open("\\\\.\\pipe\\lumora-test-" + std::to_string(GetCurrentProcessId())));
}

TEST_F(HostilePicturesWin, APathOfThreeHundredCharactersIsAsGoodAsAnyOther) {
  std::string path = folder.path();
  while (path.size() < 300 - 60) {
    path += "\\" + std::string(50, 'p');
    ASSERT_TRUE(CreateDirectoryW(os::WidePath(path, 12).c_str(), nullptr)) << GetLastError();
  }
  path += "\\" + std::string(300 - path.size() - 5, 'f') + ".bmp";
  ASSERT_EQ(path.size(), 300U);
  EXPECT_FALSE(loader.open(path));
  support::WriteFileAt(path, support::RedOverBlue(24, 0, false).bytes());
  const auto opened = loader.open(path);
  ASSERT_TRUE(opened);
  EXPECT_TRUE(opened->drawnAt(kThumbnail));
  EXPECT_FALSE(loader.open(std::string(40000, 'x') + ".jpg"));
}

// How long a server that does not answer holds a caller is the system's to say; here nobody listens.
TEST_F(HostilePicturesWin, ADeadNetworkPathIsRefused) {
  EXPECT_FALSE(loader.open("\\\\127.0.0.1\\none\\x.jpg"));
  EXPECT_FALSE(loader.open("\\\\?\\UNC\\127.0.0.1\\none\\x.jpg"));
}

TEST_F(HostilePicturesWin, AFileThatGrowsOrShrinksBehindTheProgramsBackIsDrawnOrRefused) {
  const std::string whole = support::RedOverBlue(24, 0, false).bytes();
  const std::string path = folder.put("a.bmp", whole);
  const auto opened = loader.open(path);
  ASSERT_TRUE(opened);
  ASSERT_TRUE(opened->drawnAt(kThumbnail));
  support::WriteFileAt(path, whole.substr(0, 60));
  EXPECT_FALSE(opened->drawnAt(kThumbnail));
  support::WriteFileAt(path, whole);
  EXPECT_TRUE(opened->drawnAt(kThumbnail));
  DeleteFileW(os::WidePath(path).c_str());
  EXPECT_FALSE(opened->drawnAt(kThumbnail));
}

}  // namespace
}  // namespace pictures
