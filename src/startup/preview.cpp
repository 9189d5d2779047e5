#include "startup/preview.h"

#include <cstdlib>
#include <memory>

#include "pictures/gif_first_frame.h"
#include "settings/settings_file.h"
#include "startup/command_line.h"

namespace startup {

namespace {

constexpr int kRunsOfTheQueue = 200;
constexpr int kColumnsLookedAt = 4;
constexpr int kRowsLookedAt = 3;
constexpr int kSameColor = 8;  // steps of a channel that a screen of fewer colours may be off

void RunQueue(os::EventLoop& loop) {
  for (int i = 0; i < kRunsOfTheQueue; ++i) loop.runPending();
}

// What is copied: the box's picture where there is one, the box's empty ground elsewhere.
base::Bitmap PreviewBlock(const PuzzleForm& form) {
  base::Bitmap block(kPreviewSize, base::OpaquePixel(base::kBlack));
  if (const base::SharedBitmap image = form.Picture1.image()) {
    base::BlendRect(block.view(), {0, 0}, *image, base::PixelRect::ofSize(kPreviewSize));
  }
  return block;
}

bool LooksTheSame(base::Pixel a, base::Pixel b) {
  for (int shift = 0; shift < 24; shift += 8) {
    const int difference = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
    if (std::abs(difference) > kSameColor) return false;
  }
  return true;
}

void KeepAlive(std::intptr_t window, const base::Bitmap& block, const PreviewServices& services) {
  const auto closed = std::make_shared<bool>(false);
  services.window.follow(window, [closed]() noexcept { *closed = true; });
  std::int64_t nextCheck = services.clock.tickMs() + kPreviewCheckMs;
  while (!services.loop.isQuitting() && !*closed) {
    services.loop.waitUntil(nextCheck);
    if (services.clock.tickMs() < nextCheck) continue;
    if (!services.window.exists(window) || services.window.holdsAnother(window)) return;
    if (PreviewIsLost(services.window, window, block)) services.window.draw(window, block);
    nextCheck = services.clock.tickMs() + kPreviewCheckMs;
  }
}

}  // namespace

base::Bitmap PreviewImage(std::string_view gifFile) {
  const auto frame = pictures::GifFirstFrame::decode(gifFile);
  if (!frame) return {};
  base::Bitmap picture(frame->size());
  for (int y = 0; y < picture.size().height; ++y) frame->row(y, picture.row(y));
  picture.setOpaque(true);
  return picture;
}

PuzzleForm::PuzzleForm(const base::Bitmap& image) : Form("PuzzleForm"), Picture1(*this, "Picture1") {
  Picture1.setAutoSize(true);
  Picture1.setPicture(pictures::MakePicture(std::make_shared<base::Bitmap>(image)));
}

std::string LivePreviewSetting(os::Files& files, const os::AnsiCodePage& ansi,
                               const std::string& programFolder) {
  const std::string bytes = files.read(settings::IniPath(programFolder)).value_or(std::string());
  const settings::IniDocument document(bytes, ansi);
  return settings::ReadIniValue(document, settings::KeyOf(&settings::SettingsRecord::livePreview));
}

bool PreviewIsLost(os::ForeignWindow& foreign, std::intptr_t window, const base::Bitmap& block) {
  for (int row = 0; row < kRowsLookedAt; ++row) {
    for (int column = 0; column < kColumnsLookedAt; ++column) {
      // The middles of a grid's fields, which lie well inside.
      const base::PixelPoint place{(2 * column + 1) * block.size().width / (2 * kColumnsLookedAt),
                                   (2 * row + 1) * block.size().height / (2 * kRowsLookedAt)};
      const auto shown = foreign.pixelAt(window, place);
      if (shown && !LooksTheSame(*shown, block.at(place.x, place.y))) return true;
    }
  }
  return false;
}

void DrawPreview(const std::string& commandText, const base::Bitmap& image, const std::string& livePreview,
                 const PreviewServices& services, const std::function<void()>& endProgram) {
  const PuzzleForm form(image);
  RunQueue(services.loop);
  const std::intptr_t window = PreviewWindowOf(commandText);
  const base::Bitmap block = PreviewBlock(form);
  const bool isWindow = window != 0 && services.window.exists(window);
  if (isWindow || window == 0) services.window.draw(window, block);
  RunQueue(services.loop);
  if (livePreview == "1" && isWindow) {
    services.instance.release();
    KeepAlive(window, block, services);
  }
  endProgram();
}

}  // namespace startup
