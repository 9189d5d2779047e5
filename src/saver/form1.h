// The show: its timers, the order of steps of every change, on the primary screen and on further ones.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/random.h"
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
#include "saver/face.h"
#include "saver/picture_order.h"
#include "saver/picture_shapes.h"
#include "saver/show_notes.h"
#include "saver/show_wish.h"
#include "saver/shown_pictures.h"
#include "saver/time_display.h"
#include "saver/upcoming_pictures.h"
#include "saver/wish_queue.h"
#include "settings/load_settings.h"

namespace saver {

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
  // A stage for the window of a further screen. Without it there are none.
  std::function<std::unique_ptr<Stage>(StageWindow&)> makeStage = nullptr;
};

// A screen beside the primary one, with a window of its own.
struct FurtherScreen {
  StageWindow* window = nullptr;
  base::PixelRect area;  // in pixels, from the top left corner of the primary screen
};

// What the screens beside the primary one show: [extras] otherScreens.
enum class OtherScreens {
  Nothing,    // they are left alone
  Black,      // they are covered
  Same,       // the picture of the primary one
  Different,  // each a picture of its own
  Span,       // one show over all of them
};

// A text that is none of the key's values leaves them alone.
OtherScreens OtherScreensNamed(std::string_view text);

// Runs on timers from Form_Load on. Waits inside a change let any event run, the end of the show included:
// after each of them isOver() is asked, and nothing touches a control once it is true. Run-time errors of
// handlers (base::RunTimeError) go to the event border. It is the face of the primary screen itself.
class Form1 : public Face {
 public:
  Form1(const ShowServices& services, const os::SystemFacts& facts, std::string programFolder);

  forms::Label time;  // the clock or the countdown
  forms::Timer StartSaver;
  forms::Timer ImageChangeTimer;
  forms::Timer FloatTimer;
  forms::Timer ScrollerTimer;
  forms::Timer timeTimer;

  // Called when the settings have been loaded and nothing has been shown yet.
  std::function<void()> onSettingsLoaded;

  // Makes the window cover the screen, reads the settings and prepares the display.
  void Form_Load();

  // The screens beside the primary one that are to show pictures, each already covered by its window; all of
  // them at each call. The show goes on at once on what is there. A window stays usable until the show has
  // ended, even when its screen has gone.
  void setFurtherScreens(std::span<const FurtherScreen> screens);

  // The screens are arranged differently now. The window goes to the primary one; where that has another
  // size, everything is laid out on it by the rules of the start, the picture on the screen too, and an
  // effect that is running is given up. Does nothing while there is no screen.
  void ScreenChanged();

  // The screens are others than those that are covered.
  bool screenIsAnother() const { return areaToCover() != area(); }

  // Nothing but the backgrounds is seen any more.
  void leaveBackground();

  // The end of the show: the timers stop, and isOver() is true from now on.
  void unload();
  bool isOver() const { return unloaded_ || services_.loop.isQuitting(); }

  // [extras] keys: keys wish for things instead of ending the show. Known once the settings are loaded.
  bool takesKeys() const { return settings_.record.keys == "1"; }

  // Carries a wish out: at once, or as soon as the change that is under way has been brought to its end.
  // `isRepeated`: the key is held down. Ending the program to open a folder is not the form's to do.
  void wish(ShowWish wish, bool isRepeated = false);

  // The path of the picture that came to the primary screen last, as the list has it; empty when none did.
  std::string shownPath() const;

  // On any thread, when the program has crashed: see PictureOrder.
  void rememberAfterCrash() noexcept { order_.saveAfterCrash(); }

  const settings::SaverSettings& settings() const { return settings_; }

  // The primary screen's part of the window, in its pixels, as everything was laid out last.
  const base::PixelRect& primaryPart() const { return part_; }

  // The procedures of the show, in the order in which a run meets them. Those of the timers of caption and
  // clock are with them.
  void PrepareDisplay();
  void StartSaver_Timer();
  void ImageChangeTimer_Timer();
  void AdvancePictureIndex();
  bool ShowNextPicture();  // false when what was to come has not come: the end, or another wish
  void RetireOldPicture();
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
  class StepScope;

  // Of the pictures that the order chose to come next.
  enum class Upcoming { HasCome, Stands };

  // Whether a picture is to be put away has been asked.
  struct Asked {
    std::string path;
    std::int64_t untilMs = 0;
  };

  static constexpr std::size_t kWishesOfAFace = 2;  // a picture and a background
  static constexpr std::size_t kWishesForShapes = 1;

  // A face on a further screen.
  struct Further {
    StageWindow* window;
    std::unique_ptr<Stage> stage;
    std::unique_ptr<Face> face;
  };

  void wireTimers();
  void flush();
  void beginOrder();
  void takeNews();
  void chooseFromNewList();
  void changePictures();
  std::uint64_t drawSeed();
  bool spans() const { return otherScreens_ == OtherScreens::Span; }
  base::PixelRect areaToCover() const;
  void coverScreen();
  void keepWordsOnPrimary();
  void moveClock(const base::PixelRect& from);
  void startPictureCycle();
  void setFloatInterval();
  void chooseFirst();
  void chooseForFurther();
  bool matchesShapes() const;
  std::string pathOf(std::int16_t index) const;
  void startDealing(std::optional<std::int16_t> first);
  void dealByShape();
  void dealTo(Face& face);
  void findOutShapes();
  void dealAgainWhereItMisfits();
  bool fits(std::int16_t index, const Face& face);
  std::int16_t nextBehind(std::int16_t index);
  bool isDrawn() const;
  std::int16_t drawIndex();
  void prepareAll();
  std::vector<Face*> faces();
  void addFurther(const FurtherScreen& screen);
  void layOutFace(Face& face);
  void moveFurther(Face& face, const base::PixelRect& area);
  bool drawsChange() const { return change_ != ChangeState::None && change_ != ChangeState::Awaiting; }
  void pauseAfterRetiring();
  void runEffectOn(const std::vector<Face*>& faces);
  void replaceByWayOfBackground();
  void replacePictures();
  void bringPictures(void (Face::*bring)());
  void fade();
  void runDirectEffect();
  std::function<bool()> givenUp() const;
  void reseed();
  bool showsPicture() const;

  bool endsAwaiting(ShowWish wish) const;
  bool endsChange(ShowWish wish);
  void carryOutWishes(bool takesSteps);
  void carryOut(ShowWish wish);
  void stepToNext();
  void stepBack();
  void takeStep();
  void chooseNext(Upcoming upcoming);
  void bringAgain(const ShownPictures::Change& change);
  void takeUp();
  void stepThroughNewList();
  void leaveAwaited();
  void noteShown();
  void holdOrGoOn();
  void neverAgain();
  void putAway();
  void inform();
  std::optional<std::int16_t> indexOf(const ShownPicture& picture) const;
  bool takesCare() const { return settings_.record.care == "1"; }
  void takeCareOfAll();
  void showNotes();
  void layOutNotes();

  ShowServices services_;
  os::SystemFacts facts_;
  std::string programFolder_;
  settings::SaverSettings settings_;
  PictureOrder order_;
  forms::Timer newsTimer_;      // asks for changes of the followed folders
  forms::Timer rememberTimer_;  // in case that the show is not asked when it ends
  forms::Timer careTimer_;
  std::int64_t careMinute_ = 0;
  WordsCare clockCare_{time, services_.stage, {.x = -1, .y = -1}};
  TimeDisplay timeDisplay_{time, timeTimer, settings_, services_.clock, services_.dates};
  base::Random random_;
  base::PixelRect part_;
  OtherScreens otherScreens_ = OtherScreens::Nothing;
  PictureShapes shapes_{services_.pictures, services_.ahead};
  UpcomingPictures upcoming_;
  bool keepsDesktop_ = false;
  std::vector<Further> further_;
  std::vector<Face*> changing_;  // the faces of the change that is under way
  std::vector<Further> gone_;    // their screens have gone; a change may still be at work on them
  ChangeState change_ = ChangeState::None;
  bool cycles_ = false;  // pictures change by themselves
  bool isPrepared_ = false;
  bool unloaded_ = false;

  // Of a show that takes keys.
  WishQueue wishes_;
  forms::Timer wishTimer_;
  ShownPictures shown_;
  ShowNotes notes_;
  std::optional<ShownPicture> present_;                // on the primary screen
  std::optional<std::vector<std::int16_t>> putAside_;  // what comes next when older pictures have come again
  std::optional<Asked> asked_;
  std::optional<ShowWish> leavesAwaited_;  // for this the awaited pictures are to come no more
  bool hurries_ = false;                   // the change is to come to its end at once
  bool steps_ = false;                     // the user has asked for the change
  bool awaitsOlder_ = false;               // a picture that is left out when it has gone
  bool olderHasGone_ = false;
  bool isHeld_ = false;
  bool informs_ = false;
};

}  // namespace saver
