#include "saver/miniature.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/resample.h"
#include "base/rounding.h"
#include "base/twips.h"
#include "os/desktop.h"
#include "os/read_only_files.h"
#include "saver/form1.h"
#include "saver/miniature_loop.h"
#include "settings/settings_file.h"

namespace saver {

namespace {

// How long the last play's picture stands while the new one is made ready.
constexpr int kPatienceMs = 300;

// Between two looks whether an ended show has gone; and after how many of them it is taken for one that
// stays, below a message box or a menu, and is no longer waited for.
constexpr int kTendMs = 5;
constexpr int kMostTurns = 3;

// Words at scale could not be read. On a screen of 96 dots per inch so many make twenty points eleven pixels.
constexpr int kLeastWordDpi = 38;
constexpr int kUsualDpi = 96;

constexpr int kTwipsPerInch = 1440;

// Every picture comes from the thread that loads ahead.
class NoPictures final : public pictures::PictureLoader {
 public:
  pictures::SharedPicture open(const std::string&) override { return nullptr; }
};

class NoDesktop final : public os::Desktop {
 public:
  int showCursor(bool) override { return 0; }
  void moveCursor(int, int) override {}
  std::intptr_t findTaskbar() override { return 0; }
  void hideTaskbar(std::intptr_t) override {}
  void showTaskbar(std::intptr_t) override {}
  std::intptr_t findMarkedTaskbar() override { return 0; }
  void setScreenSaverRunning(bool) override {}
};

class LittleScreen final : public os::Screen {
 public:
  using Desktop = std::function<base::Bitmap(base::PixelSize)>;

  LittleScreen(const os::Screen& real, base::PixelSize size, Desktop desktop)
      : real_(real), size_(size), desktop_(std::move(desktop)) {}

  base::PixelSize primarySize() const override { return size_; }
  int dpi() const override { return kTwipsPerInch / twipsPerPixel(); }
  std::vector<base::PixelRect> otherScreens() const override { return {}; }
  bool showsAnimations() const override { return real_.showsAnimations(); }
  base::Bitmap copyDesktop(const base::PixelRect& area) const override { return desktop_(area.size()); }

  // So many that the screen has the real one's size in twips.
  int twipsPerPixel() const {
    const double perReal = base::TwipsPerPixelForDpi(real_.dpi());
    const double ratio = static_cast<double>(real_.primarySize().width) / size_.width;
    return std::max(1, static_cast<int>(base::RoundHalfToEven(perReal * ratio)));
  }

 private:
  const os::Screen& real_;
  base::PixelSize size_;
  Desktop desktop_;
};

class LittleWindow final : public StageWindow {
 public:
  LittleWindow(forms::LiveView& view, base::PixelSize size) : view_(view) { resize(size); }

  void cover(base::PixelRect area) override {
    if (area.size() != back_.size()) resize(area.size());
  }
  void activate() override {}
  std::intptr_t handle() const override { return 0; }
  void close() override {}
  base::BitmapView backBuffer() override { return back_.view(); }
  // So little is drawn by one thread.
  void runParts(int count, const std::function<void(int part)>& run) override {
    for (int part = 0; part < count; ++part) run(part);
  }
  void present(std::span<const base::PixelRect> areas) override {
    base::CopyRects(shown_->view(), {0, 0}, back_, areas);
    if (isSeen()) view_.frameDrawn(areas);
  }

  bool isSeen() const { return view_.frame() == shown_; }
  void show() { view_.setFrame(shown_); }

 private:
  void resize(base::PixelSize size) {
    back_ = base::Bitmap(size, base::OpaquePixel(base::kBlack));
    shown_ = std::make_shared<base::Bitmap>(back_);
    shown_->setOpaque(true);
  }

  forms::LiveView& view_;
  base::Bitmap back_;  // may run ahead of what is shown
  std::shared_ptr<base::Bitmap> shown_;
};

}  // namespace

// One play, from its settings to its end.
class Miniature::Run {
 public:
  Run(const MiniatureServices& services, forms::LiveView& view, MiniaturePlay what, base::PixelSize size,
      std::shared_ptr<pictures::AheadLoader> loader, LittleScreen::Desktop desktop)
      : what_(std::move(what)),
        loader_(std::move(loader)),
        files_(services.files, settings::IniPath({}), what_.settings),
        screen_(services.screen, size, std::move(desktop)),
        loop_(services.loop, services.clock),
        text_(services.makeText(std::max(screen_.dpi(), kLeastWordDpi * services.screen.dpi() / kUsualDpi))),
        window_(view, size),
        stage_(window_, *text_, screen_.twipsPerPixel()),
        patience_(services.loop, kPatienceMs),
        form_({files_, services.ansi, pictures_, *loader_, loop_, loop_, screen_, system_, services.dates,
               stage_, window_},
              {}, {}) {
    loop_.setErrorHandler([this](const std::exception&) { end(); });
    loop_.onHandled = [this] { handled(); };
    patience_.onTimer = [this] { comeToSight(); };
  }

  void start(bool isFirst) {
    loop_.dispatch([this] {
      form_.Form_Load();
      form_.StartSaver.setInterval(1);
    });
    if (form_.isOver()) return;
    if (isFirst) window_.show();
    patience_.setEnabled(true);
  }

  void end() {
    patience_.setEnabled(false);
    form_.unload();
  }

  // None of its handlers is on the stack.
  bool isAtRest() const { return loop_.running() == 0; }

  const settings::SaverSettings& settings() const { return form_.settings(); }

  std::string shownPicture() const {
    const auto index = static_cast<std::size_t>(form_.shownImageIndex());
    const std::vector<std::string>& files = form_.settings().imageFiles;
    return form_.shownImageIndex() >= 0 && index < files.size() ? files[index] : std::string();
  }

  base::PixelRect picturePlace() const {
    const forms::PictureBox& picture = form_.DisplayingPicture;
    return picture.visible() ? picture.pixelRect() : base::PixelRect();
  }

 private:
  void handled() {
    if (form_.isOver() || hasPicture_ || !form_.pictureShown()) return;
    hasPicture_ = true;
    comeToSight();
    if (!screen_.showsAnimations()) {
      end();
    } else if (what_.changesAtOnce && form_.ImageChangeTimer.enabled()) {
      form_.ImageChangeTimer.setInterval(1);
    }
  }

  void comeToSight() {
    patience_.setEnabled(false);
    loop_.setHurry(false);
    window_.show();
  }

  MiniaturePlay what_;
  std::shared_ptr<pictures::AheadLoader> loader_;
  os::ReadOnlyFiles files_;
  LittleScreen screen_;
  MiniatureLoop loop_;
  NoPictures pictures_;
  NoDesktop system_;
  std::unique_ptr<os::TextRenderer> text_;
  LittleWindow window_;
  Stage stage_;
  forms::Timer patience_;
  Form1 form_;
  bool hasPicture_ = false;
};

Miniature::Miniature(const MiniatureServices& services) : services_(services), tend_(services.loop, kTendMs) {
  tend_.onTimer = [this] { tend(); };
}

Miniature::~Miniature() { endRun(); }

void Miniature::play(forms::LiveView& view, MiniaturePlay what) {
  endRun();
  view_ = &view;
  waiting_ = std::move(what);
  dropEnded();
  if (ended_.empty()) {
    begin();
    return;
  }
  turns_ = 0;
  tend_.setEnabled(true);
}

void Miniature::stop() {
  waiting_.reset();
  endRun();
}

void Miniature::leave(const forms::LiveView& view) {
  if (view_ != &view) return;
  stop();
  view_ = nullptr;
}

void Miniature::endRun() {
  tend_.setEnabled(false);
  if (!run_) return;
  shownPicture_ = run_->shownPicture();
  run_->end();
  if (!run_->isAtRest()) ended_.push_back(std::move(run_));
  run_.reset();
}

void Miniature::dropEnded() {
  std::erase_if(ended_, [](const std::unique_ptr<Run>& run) { return run->isAtRest(); });
}

void Miniature::tend() {
  dropEnded();
  if (!ended_.empty() && ++turns_ < kMostTurns) return;
  tend_.setEnabled(false);
  if (waiting_) begin();
}

void Miniature::begin() {
  const base::PixelSize large = services_.screen.primarySize();
  const base::PixelSize small = view_->frameSize(large);
  MiniaturePlay what = std::move(*std::exchange(waiting_, std::nullopt));
  if (large.isEmpty()) return;
  if (!loader_ || small != loaderSmall_ || large != loaderLarge_) {
    loader_ = services_.makeLoader(small, large);
    loaderSmall_ = small;
    loaderLarge_ = large;
  }
  run_ = std::make_unique<Run>(services_, *view_, std::move(what), small, loader_,
                               [this](base::PixelSize size) { return desktop(size); });
  run_->start(!view_->frame());
}

// What is on the desktop now, and not the forms that are opened on it one after the other.
base::Bitmap Miniature::desktop(base::PixelSize size) {
  if (desktop_.isEmpty()) {
    const base::PixelSize whole = services_.screen.primarySize();
    desktop_ = base::Resample(services_.screen.copyDesktop(base::PixelRect::ofSize(whole)),
                              {std::max(1, whole.width / 2), std::max(1, whole.height / 2)});
  }
  return base::Resample(desktop_, size);
}

std::string Miniature::shownPicture() const { return run_ ? run_->shownPicture() : shownPicture_; }

const settings::SaverSettings* Miniature::settings() const { return run_ ? &run_->settings() : nullptr; }

base::PixelRect Miniature::picturePlace() const { return run_ ? run_->picturePlace() : base::PixelRect(); }

}  // namespace saver
