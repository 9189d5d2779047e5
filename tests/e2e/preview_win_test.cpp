#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "os/program_resources_win.h"
#include "startup/preview.h"

namespace {

constexpr base::Pixel kGrey = base::OpaquePixel(base::Rgb(90, 90, 90));

// A top-level window of this process that plays the control panel's little monitor, grey inside.
class Monitor {
 public:
  explicit Monitor(base::PixelSize size)
      : window_(CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 100, 100, size.width,
                                size.height, nullptr, nullptr, nullptr, nullptr)),
        size_(size) {
    e2e::WaitFor([this] {
      repaint();
      return look() == base::Bitmap(size_, kGrey);
    });
  }

  // Draws the inside anew, as the control panel does.
  void repaint() { e2e::PaintWindow(window_.get(), RGB(90, 90, 90)); }

  std::wstring handle() const { return std::to_wstring(reinterpret_cast<std::uintptr_t>(window_.get())); }

  base::Bitmap look() const { return e2e::ReadScreen({100, 100, size_.width, size_.height}); }

  // Whether it comes to look so. If not, how much of it does, how much is as before, and its first pixel.
  testing::AssertionResult comesToShow(const base::Bitmap& expected, int limitMs) const {
    if (e2e::WaitFor([&] { return look() == expected; }, limitMs)) return testing::AssertionSuccess();
    const base::Bitmap shown = look();
    int right = 0;
    int grey = 0;
    for (int y = 0; y < size_.height; ++y) {
      for (int x = 0; x < size_.width; ++x) {
        right += shown.at(x, y) == expected.at(x, y) ? 1 : 0;
        grey += shown.at(x, y) == kGrey ? 1 : 0;
      }
    }
    return testing::AssertionFailure()
           << "of " << size_.width * size_.height << " pixels " << right << " are right, " << grey
           << " as before; the first is " << shown.at(0, 0);
  }

 private:
  os::OwnedWindow window_;
  base::PixelSize size_;
};

// The picture that the built program carries.
base::Bitmap CarriedPicture() {
  const os::OwnedLibrary program(
      LoadLibraryExW((e2e::builtFolder + L"\\Lumora.scr").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
  return startup::PreviewImage(os::ProgramData(startup::kPreviewImageResource, program.get()));
}

base::Bitmap Expected(base::PixelSize size) {
  base::Bitmap picture(size, kGrey);
  base::CopyRect(picture.view(), {0, 0}, CarriedPicture(), {0, 0, 160, 120});
  return picture;
}

TEST(Preview, IsDrawnOnceIntoTheGivenWindowAndEnds) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  Monitor monitor({160, 120});
  e2e::RunningProgram preview(folder.program(), L"/p " + monitor.handle());
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_EQ(preview.exitCode(), 0U);
  EXPECT_TRUE(monitor.comesToShow(Expected({160, 120}), 3000));
}

TEST(Preview, ThePreviewWritesNothingNotEvenOnTheFirstRun) {
  const e2e::ProgramFolder folder;
  const std::string asInstalled = "[firstrun]\r\nsamples=1\r\n";
  folder.writeFile("zbfaone.ini", asInstalled);
  const Monitor monitor({160, 120});
  e2e::RunningProgram preview(folder.program(), L"/p " + monitor.handle());
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_EQ(folder.readSettingsFile(), asInstalled);
}

TEST(Preview, ALargerWindowShowsThePictureInItsTopLeftCornerOnly) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  Monitor monitor({320, 240});
  e2e::RunningProgram preview(folder.program(), L"/P:" + monitor.handle());
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_TRUE(monitor.comesToShow(Expected({320, 240}), 3000));
}

TEST(Preview, AHandleThatIsNoWindowEndsQuietlyWithoutDrawing) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  const base::Bitmap before = e2e::ReadScreen();
  e2e::RunningProgram preview(folder.program(), L"/p 4711471");
  EXPECT_TRUE(preview.waitForEnd());
  EXPECT_EQ(preview.exitCode(), 0U);
  EXPECT_EQ(e2e::ReadScreen(), before);
}

TEST(Preview, ALivePreviewIsDrawnAgainWhenItWasLostAndEndsWithItsWindow) {
  e2e::ProgramFolder folder;
  folder.set("extras/livePreview", "1");
  folder.writeSettings();
  auto monitor = std::make_unique<Monitor>(base::PixelSize{160, 120});
  e2e::RunningProgram preview(folder.program(), L"/p " + monitor->handle());
  const base::Bitmap expected = Expected({160, 120});
  ASSERT_TRUE(monitor->comesToShow(expected, 15000));
  monitor->repaint();
  EXPECT_TRUE(monitor->comesToShow(expected, 15000));
  EXPECT_TRUE(preview.isRunning());
  monitor.reset();
  EXPECT_TRUE(preview.waitForEnd());
}

}  // namespace
