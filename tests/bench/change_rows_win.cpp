// Whether a long show keeps what it takes: the real form, real files and a real window, its clock turned by
// hand.
#include <windows.h>

#include <cstdint>
#include <string>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/private_bytes_win.h"
#include "bench/rows.h"
#include "os/handles_win.h"
#include "support/bmp_builder.h"
#include "support/fake_clock.h"
#include "support/fake_event_loop.h"
#include "support/gif_builder.h"
#include "support/real_show_win.h"
#include "support/wic_encoder_win.h"

namespace bench {

namespace {

constexpr int kChanges = 2000;
constexpr int kSettled = 50;

std::string SmallGif() {
  support::GifBuilder gif;
  gif.screen = {8, 8};
  gif.frame = {0, 0, 8, 8};
  gif.globalColors = std::string("\xFF\x00\x00\x00\xFF\x00\x00\x00\xFF\xFF\xFF\xFF", 12);
  for (int i = 0; i < 64; ++i) gif.indices.push_back(static_cast<std::uint8_t>(i % 4));
  return gif.file();
}

void AddMixedPictures(support::RealShow& show) {
  const std::string jpeg = support::Encode(PhotoLike({640, 480}), support::EncodedAs::jpeg);
  base::Bitmap glass({300, 200}, 0x80402010);
  show.addPicture("small.jpg", jpeg, "A small photograph");
  show.addPicture("large.jpg", support::Encode(PhotoLike({1600, 1200}), support::EncodedAs::jpeg), "");
  show.addPicture("glass.png", support::Encode(glass, support::EncodedAs::png), "Half transparent");
  show.addPicture("bitmap.bmp", support::TrueColorBmp(PhotoLike({500, 700}), support::RowOrder::bottomUp),
                  "Tall");
  show.addPicture("squares.gif", SmallGif(), "");
  show.addPicture("broken.jpg", jpeg.substr(0, jpeg.size() / 2), "Broken half-way");
  show.addPicture("empty.jpg", "", "Nothing");
  show.addPath(show.folder() + "\\missing.jpg", "Gone");
}

struct Held {
  double privateBytes = 0;
  DWORD systemHandles = 0;  // 0 where the system does not count them
  long ownHandles = 0;
};

Held HeldNow() {
  Held held;
  held.privateBytes = PrivateBytes();
  GetProcessHandleCount(GetCurrentProcess(), &held.systemHandles);
  held.ownHandles = os::ownedHandles;
  return held;
}

}  // namespace

void BenchManyChanges() {
  support::FakeClock clock;
  support::FakeEventLoop loop(clock);
  support::RealShow show(clock, loop, {800, 600});
  AddMixedPictures(show);
  for (const char* effect : {"bStandard", "bLeftWipe", "bRightWipe", "bRightandLeftWipe", "bUpAndDown",
                             "bCenter", "bHorizontalBlinds", "bVerticalBlinds", "bFade"}) {
    show.set(std::string("transitions/") + effect, "1");
  }
  show.set("extras/transitionTime", "300");
  show.set("image/timeInterval", "2");
  show.set("image/timeDisplay", "1");
  show.start();
  // Every change goes on to the next picture of the list.
  int changes = 0;
  int last = -1;
  Held settled;
  while (changes < kChanges) {
    loop.runFor(500);
    if (show.form().isOver()) return PrintRow("2,000 changes over mixed pictures: THE SHOW ENDED", "", 0, "");
    if (show.form().currentImageIndex() == last) continue;
    last = show.form().currentImageIndex();
    if (++changes == kSettled) settled = HeldNow();
  }
  const Held now = HeldNow();
  PrintRow("private memory after 2,000 changes over mixed pictures, MiB", "after change 50",
           (now.privateBytes - settled.privateBytes) / (1 << 20), "<= 1 more");
  PrintRow("handles that the program owns after them", "after change 50",
           static_cast<double>(now.ownHandles) / static_cast<double>(settled.ownHandles), "1 time");
  if (settled.systemHandles != 0) {
    PrintRow("handles that the system counts after them", "after change 50",
             static_cast<double>(now.systemHandles) / static_cast<double>(settled.systemHandles), "1 time");
  }
}

}  // namespace bench
