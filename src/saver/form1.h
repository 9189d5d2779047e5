// The full-screen window in which the show runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

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
#include "saver/caption.h"
#include "saver/floating.h"
#include "saver/next_picture.h"
#include "saver/picture_look.h"
#include "saver/picture_order.h"
#include "saver/stage.h"
#include "saver/stage_window.h"
#include "saver/time_display.h"
#include "settings/load_settings.h"

namespace saver {

struct Effect;

// What the show needs of the machine.
struct ShowServices {
  os::Files& files;
  const os::AnsiCodePage& ansi;
  pictures::PictureLoader& pictures;
  pictures::AheadLoader& ahead;  // used in the place of `pictures` where the settings ask for it
  const os::Clock& clock;
  os::EventLoop& loop;
  const os::Screen& screen;
  os::Desktop& desktop;
  const os::DateText& dates;
  Stage& stage;
  StageWindow& window;
  LibraryServices library = {};
};

// Runs on timers from Form_Load on. Waits inside a change let any event run, the end of the show included:
// after each of them isOver() is asked, and nothing touches a control once it is true. Run-time errors of
// handlers (base::RunTimeError) go to the event border.
class Form1 : public forms::Form {
 public:
  Form1(const ShowServices& services, const os::SystemFacts& facts, std::string programFolder);
  ~Form1() { dropBackgroundWish(); }

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

  // On any thread, when the program has crashed: see PictureOrder.
  void rememberAfterCrash() noexcept { order_.saveAfterCrash(); }

  const settings::SaverSettings& settings() const { return settings_; }
  std::int16_t currentImageIndex() const { return currentImageIndex_; }
  bool pictureShown() const { return pictureShown_; }
  bool loadsAhead() const { return loadsAhead_; }
  std::int16_t captionHeight() const { return caption_.bandHeight(); }

  // The procedures of the show, in the order in which a run meets them. Those of the timers of caption and
  // clock are with them.
  void PrepareDisplay();
  void DrawBackground();
  void StartSaver_Timer();
  void ImageChangeTimer_Timer();
  void AdvancePictureIndex();
  void ShowNextPicture();
  void RetireOldPicture();
  void LoadCurrentPicture();
  void ScalePicture();
  void RunTransition();
  void ShowCaption();
  void PickFloatDirection();
  void FloatTimer_Timer();

 private:
  // Where a change of pictures stands. Timers that tick in its waits start no other. As long as the new
  // picture is awaited, the old one goes on as between two changes. When the screen changes later, what the
  // effect drew is for another screen, and the effect is given up.
  enum class ChangeState { None, Awaiting, UnderWay, EffectGivenUp };
  class ChangeScope;

  void wireTimers();
  void beginOrder();
  void takeNews();
  std::uint64_t drawSeed();
  void coverScreen();
  void copyDesktopIfWanted(const settings::IniDocument& document);
  base::SharedBitmap composeBackground(BackgroundKind kind);
  base::SharedBitmap composeCustomImage();
  base::SharedBitmap composeGradient();
  void startPictureCycle();
  void setFloatInterval();
  bool floats() const;
  int changeIntervalMs() const;
  void clearBoxes();
  void chooseFirst();
  std::optional<pictures::Wish> wishFor(std::int16_t number) const;
  void prepareNext();
  void awaitPicture();
  bool drawsChange() const { return change_ != ChangeState::None && change_ != ChangeState::Awaiting; }
  void useLoadedPicture();
  void wishBackground(ImageLayout layout);
  void dropBackgroundWish();
  void PlacePicture();
  void runEffect(const Effect& effect, const base::SharedBitmap& pixels);
  void pauseAfterRetiring();
  void ReplaceByWayOfBackground();
  void ReplacePicture();
  void runDirectEffect(const base::PixelRect& area);
  int glideMs() const;
  Composition compositionFor(base::PixelSize documented) const;
  base::SharedBitmap composePicture(base::PixelSize documented);
  void layOutAgain();
  void refitPicture();
  void reseed();

  ShowServices services_;
  os::SystemFacts facts_;
  std::string programFolder_;
  settings::SaverSettings settings_;
  PictureOrder order_;
  forms::Timer newsTimer_;      // asks for changes of the followed folders
  forms::Timer rememberTimer_;  // in case that the show is not asked when it ends
  Caption caption_{Label1, ScrollerTimer, settings_};
  TimeDisplay timeDisplay_{time, timeTimer, settings_, services_.clock, services_.dates};
  PictureLook look_{services_.stage, services_.clock, services_.loop, services_.screen};
  base::Random random_;
  base::SharedBitmap desktop_;  // as it was before the window covered it; null where it is not wanted
  base::PixelSize screenSize_;
  std::int16_t currentImageIndex_ = 0;
  bool loadsAhead_ = false;  // pictures come from services_.ahead, and nothing waits for a disk
  NextPicture next_{services_.ahead, services_.loop, services_.clock};
  std::optional<pictures::AheadLoader::Ticket> backgroundWish_;
  pictures::SharedPicture loadedPicture_;  // as LoadCurrentPicture took it last, or null
  int loadReduction_ = 1;  // by which power of two LoadCurrentPicture divided the picture's size
  FloatStep floatStep_;
  bool pictureShown_ = false;
  ChangeState change_ = ChangeState::None;
  bool unloaded_ = false;
};

}  // namespace saver
