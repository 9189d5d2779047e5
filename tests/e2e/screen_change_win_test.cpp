#include <gtest/gtest.h>

#include "e2e/pointer.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "support/colors.h"

namespace {

using support::kGreenPixel;
constexpr base::PixelSize kSmall{1024, 768};

// The screen at another size for a scope. The display that the tests run on must offer it.
class ScreenAt {
 public:
  explicit ScreenAt(base::PixelSize size) : before_(e2e::ScreenSize()), result_(change(size)) {}
  // On a busy machine a change may be lost: it is asked for until it has come.
  ~ScreenAt() {
    const auto isBack = [&] {
      if (e2e::ScreenSize() != before_) change(before_);
      return e2e::ScreenSize() == before_;
    };
    EXPECT_TRUE(e2e::WaitFor(isBack)) << "the screen stays at another size";
  }
  ScreenAt(const ScreenAt&) = delete;
  ScreenAt& operator=(const ScreenAt&) = delete;

  LONG result() const { return result_; }

 private:
  static LONG change(base::PixelSize size) {
    DEVMODEW mode{};
    mode.dmSize = sizeof(mode);
    mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
    mode.dmPelsWidth = static_cast<DWORD>(size.width);
    mode.dmPelsHeight = static_cast<DWORD>(size.height);
    return ChangeDisplaySettingsW(&mode, CDS_FULLSCREEN);
  }

  base::PixelSize before_;
  LONG result_;
};

base::PixelRect Middle(base::PixelSize size) {
  const base::PixelSize screen = e2e::ScreenSize();
  return {(screen.width - size.width) / 2, (screen.height - size.height) / 2, size.width, size.height};
}

bool PictureComesTo(base::PixelSize size) {
  return e2e::WaitFor([&] { return e2e::BoundsOf(e2e::ReadScreen(), kGreenPixel) == Middle(size); });
}

bool Covers(HWND window, base::PixelSize screen) {
  RECT place;
  return GetWindowRect(window, &place) && place.left == 0 && place.top == 0 && place.right == screen.width &&
         place.bottom == screen.height;
}

TEST(ScreenChange, TheShowFollowsTheScreenToAnotherSizeAndBackAndThePointerThatGoesAlongDoesNotEndIt) {
  e2e::ProgramFolder folder;
  folder.set("image/timeInterval", "3");
  folder.set("background/newBackColor", "128");
  folder.addPicture({600, 400}, base::Rgb(0, 255, 0));
  folder.writeSettings();
  const base::PixelSize whole = e2e::ScreenSize();
  ASSERT_GT(whole.width, kSmall.width);
  e2e::MoveMouseTo(whole.width - 50, whole.height - 50);
  e2e::RunningProgram show(folder.program(), L"/S");
  const HWND window = show.waitForShow();
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(PictureComesTo({600, 400}));
  {
    const ScreenAt smaller(kSmall);
    ASSERT_EQ(smaller.result(), DISP_CHANGE_SUCCESSFUL);
    ASSERT_EQ(e2e::ScreenSize(), kSmall);
    EXPECT_TRUE(e2e::WaitFor([&] { return Covers(window, kSmall); }));
    EXPECT_TRUE(PictureComesTo({600, 400}));
    EXPECT_EQ(e2e::ScreenPixel(kSmall.width - 1, kSmall.height - 1), support::kDarkRedPixel);
  }
  EXPECT_TRUE(e2e::WaitFor([&] { return Covers(window, whole); }));
  EXPECT_TRUE(PictureComesTo({600, 400}));
  EXPECT_EQ(e2e::ScreenPixel(whole.width - 1, whole.height - 1), support::kDarkRedPixel);
  EXPECT_TRUE(show.isRunning());
  EXPECT_TRUE(show.endsByKey());
}

}  // namespace
