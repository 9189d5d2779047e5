// One screen of the show: its window, its background, its picture and its caption.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/random.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "forms/texts.h"
#include "os/ansi_code_page.h"
#include "os/clock.h"
#include "os/date_text.h"
#include "os/event_loop.h"
#include "os/screen.h"
#include "pictures/picture.h"
#include "saver/background.h"
#include "saver/caption.h"
#include "saver/floating.h"
#include "saver/next_picture.h"
#include "saver/picture_look.h"
#include "saver/placement.h"
#include "saver/screen_care.h"
#include "saver/stage.h"
#include "saver/stage_window.h"
#include "saver/transitions/effects.h"
#include "saver/transitions/transition_runner.h"
#include "settings/load_settings.h"

namespace saver {

// What a face needs of the machine; stage and window are its own.
struct FaceServices {
  pictures::PictureLoader& pictures;
  pictures::AheadLoader& ahead;  // used in the place of `pictures` where the settings ask for it
  const os::Clock& clock;
  os::EventLoop& loop;
  const os::Screen& screen;
  const os::DateText& dates;
  const os::AnsiCodePage& ansi;
  Stage& stage;
  StageWindow& window;
};

// It does the steps of a change on its own screen; when they are done, and with which effect, is the show's
// business. Errors are as the show has them.
class Face : public forms::Form {
 public:
  // `settings` are the show's, loaded before anything is prepared. `isOver` tells the end of the show, which
  // any wait may bring.
  Face(const char* name, const FaceServices& services, const settings::SaverSettings& settings,
       std::function<bool()> isOver);
  ~Face() override { dropBackgroundWish(); }

  forms::PictureBox BgrImage;           // the composed background
  forms::PictureBox PreBgrImage;        // the user's background picture as loaded
  forms::PictureBox IntialPicture;      // the next picture; the background under the old one while it retires
  forms::PictureBox PictureReduce;      // where a picture is drawn at the size that is shown
  forms::PictureBox DisplayingPicture;  // the picture on the screen
  forms::Label Label1;                  // the caption

  // Of the screen that the window covers.
  base::PixelSize screenSize() const { return area_.size(); }

  // In pixels, from the top left corner of the primary screen.
  const base::PixelRect& area() const { return area_; }

  // The picture that comes to this screen next.
  std::int16_t currentImageIndex() const { return currentImageIndex_; }

  bool pictureShown() const { return pictureShown_; }

  // The picture that came last, or is coming.
  std::int16_t shownImageIndex() const { return shownImageIndex_; }
  std::int16_t captionHeight() const { return caption_.bandHeight(); }

  // Pictures come from the loader, and nothing waits for a disk.
  bool loadsAhead() const { return settings_.record.loadAhead == "1"; }

  void DrawBackground();
  void LoadCurrentPicture();
  void ScalePicture();

 protected:
  friend class Form1;

  // Puts the boxes on the stage, the caption over them, and over it further words.
  void showOnStage(std::vector<forms::Label*> further = {});

  // Takes a copy of the desktop in `area`, which the window is about to cover, where it will be the
  // background.
  void keepDesktop(const base::PixelRect& area);

  // Covers an area of the screens.
  void cover(const base::PixelRect& area);

  // Look, caption and background, before the first picture.
  void prepareFace();

  // Everything is laid out for a screen of another size, by the rules of the start. `changing`: a change is
  // under way, which shows its picture itself when it notices.
  void layOutAgain(bool changing);
  void refitPicture();

  // Nothing moves, and nothing is wished for any more.
  void endFace();

  // Picture number `number` of the list comes next.
  void setNext(std::int16_t number) { currentImageIndex_ = number; }
  void prepareNext();
  void awaitPicture(const std::function<bool()>& givenUp);

  // The picture that was awaited last cannot be had.
  bool hasGone() const;

  // The steps of a change.
  void clearForChange();
  void drawBackgroundOverPicture();
  void bringPicture();
  void showBroughtPicture();

  // What an effect draws onto the picture's box; nothing when the brought picture cannot be drawn.
  std::optional<EffectOnBox> effectOnBox(const Effect& effect, base::Random& random);

  // For changes without a pause: what is seen stands still while the next picture is brought behind it.
  void freezeAndBringPicture();
  void beginDirectEffect();
  void endDirectEffect();
  std::optional<RunningCrossfade> fadeToPicture() { return look_.fadeToBoxes(changingArea_); }

  void showCaption();
  void moveFloating();

  // Where the settings ask for it, words of the present colour are readable on any picture.
  void shadeWords(const forms::Label& words);

  // The screen's words, and its picture where that may move, stand where they are to stand in this minute.
  // `wordsRoom` is in pixels of the window.
  void takeCare(std::int64_t minute, const base::PixelRect& wordsRoom, bool movesPicture);
  WordsCare& captionCare() { return captionCare_; }

  // When the picture that was loaded last was taken, else when its file was changed.
  std::optional<os::LocalTime> pictureDate() const;

  bool floats() const { return settings_.record.picRandom != "cent"; }
  int changeIntervalMs() const;

  Stage& stage() { return face_.stage; }
  PictureLook& look() { return look_; }
  Caption& caption() { return caption_; }

  FloatStep floatStep_;
  bool pictureShown_ = false;
  std::int16_t currentImageIndex_ = 0;
  std::int16_t shownImageIndex_ = 0;

 private:
  base::SharedBitmap composeBackground(BackgroundKind kind);
  base::SharedBitmap composeCustomImage();
  base::SharedBitmap composeGradient();
  void wishBackground(ImageLayout layout);
  void dropBackgroundWish();
  std::optional<pictures::Wish> wishFor(std::int16_t number) const;
  bool wantsFacts() const { return captionsByTemplate() || settings_.record.keys == "1"; }
  bool captionsByTemplate() const { return !settings_.record.captions.empty(); }
  std::string captionByTemplate() const;
  void clearBoxes();
  void useLoadedPicture();
  void PlacePicture();
  Placement inTheMiddle() const;
  float captionRoom() const;
  int glideMs() const;
  Composition compositionFor(base::PixelSize documented) const;
  base::SharedBitmap composePicture(base::PixelSize documented);

  FaceServices face_;
  const settings::SaverSettings& settings_;
  std::function<bool()> isOver_;
  Caption caption_{Label1, settings_};
  PictureLook look_{face_.stage, face_.clock, face_.loop, face_.screen};
  WordsCare captionCare_{Label1, face_.stage, {.x = 0, .y = 1}};
  std::optional<std::int64_t> careMinute_;
  NextPicture next_{face_.ahead, face_.loop, face_.clock};
  base::SharedBitmap desktop_;  // as it was before the window covered it; null where it is not wanted
  base::PixelRect area_;
  std::optional<pictures::AheadLoader::Ticket> backgroundWish_;
  pictures::SharedPicture loadedPicture_;  // as LoadCurrentPicture took it last, or null
  int loadReduction_ = 1;            // by which power of two LoadCurrentPicture divided the picture's size
  base::PixelRect changingArea_;     // of the window, in which a change without a pause is seen
  Placement placeBehindEffect_;      // of the picture, while its box stands for all that changes
  pictures::SharedPicture brought_;  // the picture to show when a direct effect has ended
};

}  // namespace saver
