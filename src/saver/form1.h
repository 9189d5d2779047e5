// The full-screen window in which the show runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/calendar.h"
#include "base/random.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "forms/texts.h"
#include "forms/timer.h"
#include "os/ansi_code_page.h"
#include "os/clock.h"
#include "os/date_text.h"
#include "os/desktop.h"
#include "os/event_loop.h"
#include "os/files.h"
#include "os/machine_facts.h"
#include "os/screen.h"
#include "pictures/picture.h"
#include "saver/background.h"
#include "saver/countdown.h"
#include "saver/floating.h"
#include "saver/stage.h"
#include "saver/stage_window.h"
#include "settings/load_settings.h"

namespace saver {

// What the show needs of the machine.
struct ShowServices {
  os::Files& files;
  const os::AnsiCodePage& ansi;
  pictures::PictureLoader& pictures;
  const os::Clock& clock;
  os::EventLoop& loop;
  const os::Screen& screen;
  os::Desktop& desktop;
  const os::DateText& dates;
  Stage& stage;
  StageWindow& window;
};

// Runs on timers from Form_Load on. Waits inside a change let any event run, the end of the show included:
// after each of them isOver() is asked, and nothing touches a control once it is true. Run-time errors of
// handlers (base::RunTimeError) go to the event border.
class Form1 : public forms::Form {
 public:
  Form1(const ShowServices& services, const os::SystemFacts& facts, std::string programFolder);

  forms::PictureBox BgrImage;           // the composed background
  forms::PictureBox PreBgrImage;        // the user's background picture as loaded
  forms::PictureBox IntialPicture;      // the next picture; the background under the old one while it retires
  forms::PictureBox PictureReduce;      // where a picture is drawn at the size that is shown
  forms::PictureBox DisplayingPicture;  // the picture on the screen
  forms::Label Label1;                  // the caption
  forms::Label time;                    // the clock or the countdown
  forms::Timer StartSaver;
  forms::Timer ImageChangeTimer;
  forms::Timer FloatTimer;
  forms::Timer ScrollerTimer;
  forms::Timer timeTimer;

  // Makes the window cover the screen, reads the settings and prepares the display.
  void Form_Load();

  // The screens are arranged differently now. The window goes to the primary one; where that has another
  // size, everything is laid out on it by the rules of the start, the picture on the screen too, and an
  // effect that is running is given up. Does nothing while there is no screen.
  void ScreenChanged();

  // Of the screen that the window covers.
  base::PixelSize screenSize() const { return screenSize_; }

  // The end of the show: the timers stop, and isOver() is true from now on.
  void unload();
  bool isOver() const { return unloaded_ || services_.loop.isQuitting(); }

  const settings::SaverSettings& settings() const { return settings_; }
  std::int16_t currentImageIndex() const { return currentImageIndex_; }
  bool pictureShown() const { return pictureShown_; }
  std::int16_t captionHeight() const { return captionHeight_; }

  // The procedures of the show, in the order in which a run meets them.
  void LoadSettings();
  void PrepareDisplay();
  void DrawBackground();
  void StartSaver_Timer();
  void ImageChangeTimer_Timer();
  void AdvancePictureIndex();
  void ShowNextPicture();
  void RetireOldPicture();
  void LoadCurrentPicture();
  void ScalePicture();
  void PlacePicture();
  void RunTransition();
  void ShowCaption();
  void PickFloatDirection();
  void FloatTimer_Timer();
  void ScrollerTimer_Timer();
  void timeTimer_Timer();

 private:
  void wireTimers();
  void handle(void (Form1::*handler)());
  void coverScreen();
  void layOutAgain(base::PixelSize before);
  void refitPicture();
  void loadPicture(std::int16_t number);
  void PrepareCaption();
  void PrepareClock();
  void openSettings();
  base::SharedBitmap composeBackground(BackgroundKind kind);
  base::SharedBitmap composeCustomImage();
  base::SharedBitmap composeGradient();
  base::CalendarDay countdownTarget() const;
  std::string widestTimeText() const;
  void startPictureCycle();
  void setFloatInterval();
  bool floats() const;
  bool yield(std::int64_t untilMs);
  void pauseAfterRetiring();
  void reseed();
  float screenWidth() const;
  float screenHeight() const;
  int changeIntervalMs() const;

  ShowServices services_;
  os::SystemFacts facts_;
  std::string programFolder_;
  settings::SaverSettings settings_;
  base::Random random_;
  std::optional<settings::IniDocument> document_;  // between its opening and LoadSettings
  base::SharedBitmap desktop_;  // as it was before the window covered it; null where it is not wanted
  base::PixelSize screenSize_;
  Countdown countdown_;  // the last reading; kept when the target has passed
  std::int16_t currentImageIndex_ = 0;
  std::int16_t loadedImageIndex_ = 0;  // of the picture that LoadCurrentPicture took last
  std::int16_t captionHeight_ = 0;
  FloatStep floatStep_;
  int loadReduction_ = 1;  // by which power of two LoadCurrentPicture divided the picture's size
  bool pictureShown_ = false;
  bool changing_ = false;       // a change is under way: timers that tick in its waits must not start another
  bool effectGivenUp_ = false;  // the screen changed under a change: what it drew is for another screen
  bool unloaded_ = false;
};

}  // namespace saver
