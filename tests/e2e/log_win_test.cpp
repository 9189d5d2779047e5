#include <gtest/gtest.h>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/files_win.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

using support::kGreenPixel;

// A show of a picture that is not there and one that is, until the second is on the screen.
void RunShow(e2e::ProgramFolder& folder) {
  folder.addPicture({40, 30}, 0);
  folder.addPicture({600, 400}, base::Rgb(0, 255, 0));
  folder.writeSettings();
  DeleteFileW((folder.path() + L"\\picture0.bmp").c_str());
  e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  EXPECT_TRUE(show.endsByKey());
}

TEST(Log, AskedForItNamesThePictureThatIsNotThere) {
  e2e::ProgramFolder folder;
  folder.set("extras/log", "1");
  RunShow(folder);
  const auto log = os::FilesWin().read(os::FromWide(folder.path()) + "\\lumora.log");
  ASSERT_TRUE(log);
  const std::string line = " picture: no such file: " + os::FromWide(folder.path()) + "\\picture0.bmp\r\n";
  ASSERT_GT(log->size(), line.size());
  EXPECT_EQ(log->substr(19), line) << "after the date and the time, nothing else";
}

TEST(Log, NotAskedForThereIsNone) {
  e2e::ProgramFolder folder;
  RunShow(folder);
  EXPECT_FALSE(os::FilesWin().exists(os::FromWide(folder.path()) + "\\lumora.log"));
}

}  // namespace
