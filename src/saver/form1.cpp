#include "saver/form1.h"

#include <functional>
#include <utility>

#include "base/color.h"
#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "settings/settings_file.h"

namespace saver {

namespace {

constexpr int kStartDelayMs = 500;
constexpr int kChangeHoldMs = 60000;  // no tick of the picture's timer is wanted while a change is under way
constexpr int kFloatIntervalMs = 100;
constexpr int kClockIntervalMs = 100;
constexpr int kNewsIntervalMs = 500;
constexpr int kRememberIntervalMs = 10 * 60 * 1000;

}  // namespace

Form1::Form1(const ShowServices& services, const os::SystemFacts& facts, std::string programFolder)
    : Form("Form1"),
      BgrImage(*this, "BgrImage"),
      PreBgrImage(*this, "PreBgrImage"),
      IntialPicture(*this, "IntialPicture"),
      PictureReduce(*this, "PictureReduce"),
      DisplayingPicture(*this, "DisplayingPicture"),
      Label1(*this, "Label1"),
      time(*this, "time"),
      StartSaver(services.loop),
      ImageChangeTimer(services.loop),
      FloatTimer(services.loop, kFloatIntervalMs),
      ScrollerTimer(services.loop),
      timeTimer(services.loop, kClockIntervalMs),
      services_(services),
      facts_(facts),
      programFolder_(std::move(programFolder)),
      order_(settings_, services.files, programFolder_, services.library),
      newsTimer_(services.loop, kNewsIntervalMs),
      rememberTimer_(services.loop, kRememberIntervalMs) {
  setHost(&services_.stage);
  setBackColor(base::kBlack);
  IntialPicture.setAutoSize(true);
  PreBgrImage.setAutoSize(true);
  for (forms::Control* control : controls()) control->setVisible(false);
  BgrImage.setVisible(true);
  Label1.setTransparent(true);
  Label1.setCaption(" ");
  Label1.setAutoSize(true);
  time.setTransparent(true);
  time.setFont({.name = "MS Sans Serif", .sizePoints = 13.5F});
  time.setAutoSize(true);
  wireTimers();
  services_.stage.show(*this, BgrImage, DisplayingPicture, {&Label1, &time});
}

void Form1::wireTimers() {
  const auto on = [this](forms::Timer& timer, std::function<void()> handler) {
    timer.onTimer = [this, handler = std::move(handler)] {
      if (isOver()) return;
      handler();
      if (!isOver()) services_.stage.flush();
    };
  };
  on(StartSaver, [this] { StartSaver_Timer(); });
  on(ImageChangeTimer, [this] { ImageChangeTimer_Timer(); });
  on(FloatTimer, [this] { FloatTimer_Timer(); });
  on(ScrollerTimer, [this] { caption_.ScrollerTimer_Timer(); });
  on(timeTimer, [this] { timeDisplay_.timeTimer_Timer(); });
  on(newsTimer_, [this] { takeNews(); });
  on(rememberTimer_, [this] { order_.save(); });
}

void Form1::unload() {
  if (!unloaded_) order_.save();
  unloaded_ = true;
  next_.forget();
  dropBackgroundWish();
  for (forms::Timer* timer : {&StartSaver, &ImageChangeTimer, &FloatTimer, &ScrollerTimer, &timeTimer,
                              &newsTimer_, &rememberTimer_}) {
    timer->setEnabled(false);
  }
  look_.end();
}

void Form1::Form_Load() {
  const settings::IniDocument document =
      settings::OpenSettings(services_.files, services_.ansi, programFolder_);
  copyDesktopIfWanted(document);
  coverScreen();
  if (facts_.guardsPassword()) services_.desktop.setScreenSaverRunning(true);
  settings::LoadSettings(settings_, document);
  loadsAhead_ = settings_.record.loadAhead == "1";
  beginOrder();
  PrepareDisplay();
  services_.stage.flush();
}

// The window is about to cover the desktop, so the copy of it is taken before.
void Form1::copyDesktopIfWanted(const settings::IniDocument& document) {
  const std::string background =
      settings::ReadIniValue(document, settings::KeyOf(&settings::SettingsRecord::backEffect));
  if (base::LeadingNumber(background) != static_cast<int>(BackgroundKind::Desktop)) return;
  desktop_ = std::make_shared<base::Bitmap>(services_.screen.copyDesktop());
}

void Form1::PrepareDisplay() {
  look_.prepare(settings_.record);
  caption_.prepare();
  DrawBackground();
  Label1.setTop(0);
  timeDisplay_.prepare();
  StartSaver.setInterval(kStartDelayMs);
  StartSaver.setEnabled(true);
  if (loadsAhead_) chooseFirst();  // made ready while the background stands alone
}

void Form1::StartSaver_Timer() {
  // The first change yields to events, and this timer is still enabled then.
  if (change_ != ChangeState::None) return;
  takeNews();
  if (order_.waitsForPictures()) return;  // the timer ticks again
  if (!loadsAhead_) chooseFirst();
  if (floats()) {
    setFloatInterval();
  } else if (base::StrictDouble(settings_.record.timeInterval) == 0) {
    ShowNextPicture();
    if (isOver()) return;
    ShowCaption();
    StartSaver.setEnabled(false);
    return;
  }
  startPictureCycle();
}

void Form1::setFloatInterval() {
  // A speed that is none of the table's, or no number, leaves the interval as it stands.
  try {
    const std::optional<int> interval = FloatIntervalMs(base::StrictDouble(settings_.record.picSpeed));
    if (interval) FloatTimer.setInterval(*interval);
  } catch (const base::RunTimeError&) {
    return;
  }
}

void Form1::startPictureCycle() {
  ShowNextPicture();
  if (isOver()) return;
  ShowCaption();
  AdvancePictureIndex();
  ImageChangeTimer.setEnabled(true);
  ImageChangeTimer.setInterval(changeIntervalMs());
  if (floats()) PickFloatDirection();
  StartSaver.setEnabled(false);
}

void Form1::ImageChangeTimer_Timer() {
  if (change_ != ChangeState::None) return;
  reseed();
  if (floats()) FloatTimer_Timer();
  if (currentImageIndex_ > settings_.lastImageIndex) currentImageIndex_ = 0;
  ImageChangeTimer.setInterval(kChangeHoldMs);
  ShowNextPicture();
  if (isOver()) return;
  ShowCaption();
  AdvancePictureIndex();
  ImageChangeTimer.setInterval(changeIntervalMs());
}

bool Form1::floats() const { return settings_.record.picRandom != "cent"; }

int Form1::changeIntervalMs() const {
  return base::ToInt32(base::StrictDouble(settings_.record.timeInterval) * 1000);
}

void Form1::ShowCaption() {
  const auto index = static_cast<std::size_t>(currentImageIndex_);
  const bool known = currentImageIndex_ >= 0 && index < settings_.imageCaptions.size();
  caption_.show(known ? settings_.imageCaptions[index] : std::string());
}

}  // namespace saver
