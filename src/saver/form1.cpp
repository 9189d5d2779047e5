#include "saver/form1.h"

#include <functional>
#include <utility>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/text.h"
#include "settings/settings_file.h"

namespace saver {

namespace {

constexpr int kStartDelayMs = 500;
constexpr int kChangeHoldMs = 60000;  // no tick of the picture's timer is wanted while a change is under way
constexpr int kFloatIntervalMs = 100;
constexpr int kClockIntervalMs = 100;
constexpr int kScrollIntervalMs = 100;
constexpr int kNewsIntervalMs = 500;
constexpr int kRememberIntervalMs = 10 * 60 * 1000;
constexpr int kWishIntervalMs = 10;
constexpr int kCareIntervalMs = 60 * 1000;

}  // namespace

OtherScreens OtherScreensNamed(std::string_view text) {
  if (base::EqualAsciiBlind(text, "black")) return OtherScreens::Black;
  if (base::EqualAsciiBlind(text, "same")) return OtherScreens::Same;
  if (base::EqualAsciiBlind(text, "different")) return OtherScreens::Different;
  if (base::EqualAsciiBlind(text, "span")) return OtherScreens::Span;
  return OtherScreens::Nothing;
}

Form1::Form1(const ShowServices& services, const os::SystemFacts& facts, std::string programFolder)
    : Face("Form1",
           {services.pictures, services.ahead, services.clock, services.loop, services.screen, services.dates,
            services.ansi, services.stage, services.window},
           settings_, [this] { return isOver(); }),
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
      rememberTimer_(services.loop, kRememberIntervalMs),
      careTimer_(services.loop, kCareIntervalMs),
      wishTimer_(services.loop, kWishIntervalMs),
      notes_(*this, services.loop) {
  time.setVisible(false);
  time.setTransparent(true);
  time.setFont({.name = "MS Sans Serif", .sizePoints = 13.5F});
  time.setAutoSize(true);
  wireTimers();
  shapes_.onNews = [this] { dealAgainWhereItMisfits(); };
  showOnStage({&time});
}

void Form1::wireTimers() {
  const auto on = [this](forms::Timer& timer, std::function<void()> handler) {
    timer.onTimer = [this, handler = std::move(handler)] {
      if (isOver()) return;
      handler();
      if (!isOver()) flush();
    };
  };
  on(StartSaver, [this] { StartSaver_Timer(); });
  on(ImageChangeTimer, [this] { ImageChangeTimer_Timer(); });
  on(FloatTimer, [this] { FloatTimer_Timer(); });
  on(ScrollerTimer, [this] {
    for (Face* face : faces()) face->caption().ScrollerTimer_Timer();
  });
  on(timeTimer, [this] {
    timeDisplay_.timeTimer_Timer();
    clockCare_.look(services_.clock.tickMs());
  });
  on(careTimer_, [this] {
    ++careMinute_;
    takeCareOfAll();
  });
  on(newsTimer_, [this] { takeNews(); });
  on(rememberTimer_, [this] { order_.save(); });
  on(wishTimer_, [this] { carryOutWishes(true); });
  notes_.onSignGone = [this] {
    if (!isOver()) flush();
  };
}

void Form1::flush() {
  for (Face* face : faces()) face->stage().flush();
}

void Form1::unload() {
  if (!unloaded_) order_.save();
  unloaded_ = true;
  for (forms::Timer* timer : {&StartSaver, &ImageChangeTimer, &FloatTimer, &ScrollerTimer, &timeTimer,
                              &newsTimer_, &rememberTimer_, &careTimer_, &wishTimer_}) {
    timer->setEnabled(false);
  }
  notes_.end();
  for (Face* face : faces()) face->endFace();
  shapes_.forget();
}

void Form1::Form_Load() {
  const settings::IniDocument document =
      settings::OpenSettings(services_.files, services_.ansi, programFolder_);
  otherScreens_ = OtherScreensNamed(
      settings::ReadIniValue(document, settings::KeyOf(&settings::SettingsRecord::otherScreens)));
  // The windows are about to cover the desktop, so copies of it are taken before.
  const std::string background =
      settings::ReadIniValue(document, settings::KeyOf(&settings::SettingsRecord::backEffect));
  keepsDesktop_ = base::LeadingNumber(background) == static_cast<int>(BackgroundKind::Desktop);
  if (keepsDesktop_) keepDesktop(areaToCover());
  coverScreen();
  if (facts_.guardsPassword()) services_.desktop.setScreenSaverRunning(true);
  settings::LoadSettings(settings_, document);
  if (onSettingsLoaded) onSettingsLoaded();
  if (takesKeys()) showNotes();
  beginOrder();
  PrepareDisplay();
  flush();
}

void Form1::PrepareDisplay() {
  for (Face* face : faces()) face->prepareFace();
  isPrepared_ = true;
  timeDisplay_.prepare();
  shadeWords(time);
  moveClock(base::PixelRect::ofSize(screenSize()));
  careTimer_.setEnabled(takesCare());
  takeCareOfAll();
  StartSaver.setInterval(kStartDelayMs);
  StartSaver.setEnabled(true);
  if (loadsAhead()) chooseFirst();  // made ready while the background stands alone
}

void Form1::StartSaver_Timer() {
  // The first change yields to events, and this timer is still enabled then.
  if (change_ != ChangeState::None) return;
  takeNews();
  if (order_.waitsForPictures()) return;  // the timer ticks again
  if (!loadsAhead()) chooseFirst();
  if (floats()) {
    setFloatInterval();
  } else if (base::StrictDouble(settings_.record.timeInterval) == 0) {
    changePictures();
    if (!isOver()) StartSaver.setEnabled(false);
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
  cycles_ = true;
  changePictures();
  if (isOver()) return;
  ImageChangeTimer.setEnabled(!isHeld_);
  ImageChangeTimer.setInterval(changeIntervalMs());
  if (floats()) PickFloatDirection();
  StartSaver.setEnabled(false);
}

// The pictures that come next come, and those behind them are chosen, where there are to be any.
void Form1::changePictures() {
  if (!ShowNextPicture()) {
    if (!isOver()) leaveAwaited();
    return;
  }
  ShowCaption();
  if (takesKeys()) noteShown();
  if (cycles_ || takesKeys()) chooseNext(Upcoming::HasCome);
}

void Form1::ImageChangeTimer_Timer() {
  if (change_ != ChangeState::None) return;
  reseed();
  if (floats() && !isHeld_) FloatTimer_Timer();
  if (currentImageIndex_ > settings_.lastImageIndex) currentImageIndex_ = 0;
  ImageChangeTimer.setInterval(kChangeHoldMs);
  changePictures();
  if (isOver()) return;
  ImageChangeTimer.setInterval(changeIntervalMs());
}

void Form1::ShowCaption() {
  for (Face* face : faces()) {
    if (face->pictureShown_) face->showCaption();
    face->captionCare().look(services_.clock.tickMs());
  }
  if (!caption().scrolls()) return;
  ScrollerTimer.setInterval(kScrollIntervalMs);
  ScrollerTimer.setEnabled(true);
}

void Form1::takeCareOfAll() {
  if (!takesCare()) return;
  for (Face* face : faces()) {
    face->takeCare(careMinute_, face == this ? part_ : base::PixelRect::ofSize(face->screenSize()),
                   !drawsChange());
  }
  clockCare_.moveOn(careMinute_, part_, services_.clock.tickMs());
}

void Form1::PickFloatDirection() {
  // A box that has never held a picture has no inner width to tell the size of a pixel by.
  const bool empty = DisplayingPicture.scaleWidth() == 0;
  const float boxWidth = empty ? static_cast<float>(twipsPerPixel()) : DisplayingPicture.width();
  const FloatStep step = saver::PickFloatDirection(boxWidth, empty ? 1 : DisplayingPicture.scaleWidth(),
                                                   os::SecondsSinceMidnight(services_.clock.now()), random_);
  for (Face* face : faces()) face->floatStep_ = step;
}

void Form1::FloatTimer_Timer() {
  // A tick in a wait of a change must not move the picture that is being drawn.
  if (drawsChange()) return;
  reseed();
  for (Face* face : faces()) face->moveFloating();
}

}  // namespace saver
