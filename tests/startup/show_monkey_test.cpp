// A million random events on the real show: timers, waits, keys, moves, screens, files, whatever the
// settings. In parts, which a run in shards does at the same time.
#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "base/errors.h"
#include "base/number_text.h"
#include "saver/floating.h"
#include "saver/looks.h"
#include "saver/picture_size.h"
#include "saver/placement.h"
#include "startup/show.h"
#include "support/fake_machine.h"
#include "support/show_stage.h"

namespace {

constexpr int kParts = 8;
constexpr int kEventsOfAPart = 125'000;
constexpr int kEventsOfAShow = 4000;
constexpr unsigned kSeed = 20261121;
constexpr int kMostScreen = 40;    // pixels a side; small, since every event may draw
constexpr int kMostPicture = 64;   // pixels a side
constexpr float kStep = 15;        // twips that a floating picture may stand beyond a bound before it turns
constexpr float kAnywhere = 1e6F;  // twips
constexpr const char* kEffects[] = {"bStandard",         "bLeftWipe",       "bRightWipe",
                                    "bRightandLeftWipe", "bUpAndDown",      "bCenter",
                                    "bHorizontalBlinds", "bVerticalBlinds", "bFade"};

using Random = std::mt19937;

int Draw(Random& random, int low, int high) { return std::uniform_int_distribution(low, high)(random); }

template <std::size_t N>
const char* OneOf(Random& random, const char* const (&values)[N]) {
  return values[static_cast<std::size_t>(Draw(random, 0, static_cast<int>(N) - 1))];
}

base::PixelSize DrawSize(Random& random, int most) { return {Draw(random, 1, most), Draw(random, 1, most)}; }

// One show from its start to some time after its end, under random hands.
class MonkeyShow {
 public:
  MonkeyShow(Random& random, bool older)
      : random_(random), stage_(DrawSize(random, kMostScreen), dpiOf(random)) {
    if (older) facts_ = {.osPlatformId = 1, .usePassword = 1};
    machine_.passwords.accepts = false;
    addPictures();
    drawSettings();
    drawExtras();
    stage_.writeSettings();
    const saver::ShowServices s = stage_.services();
    show_.emplace(saver::ShowServices{s.files,
                                      s.ansi,
                                      s.pictures,
                                      s.ahead,
                                      s.clock,
                                      s.loop,
                                      s.screen,
                                      restore_,
                                      s.dates,
                                      s.stage,
                                      s.window,
                                      {},
                                      s.makeStage},
                  startup::SaverExit::Services{machine_.passwords, restore_, stage_.screen}, restore_, facts_,
                  support::ShowStage::programFolder(), [] {
                    return std::make_unique<support::FakeStageWindow>(base::PixelSize{1, 1});
                  });
    stage_.loop.afterEach = [this] { check(); };
    restore_.hideTaskbar(restore_.findTaskbar());
  }

  // Runs about `events` events, then ends the show.
  void run(int events) {
    show_->start();
    while (seen_ < events && !form().isOver() && !testing::Test::HasFailure()) {
      stage_.loop.postAfter(Draw(random_, 0, 400), [this] { act(); });
      stage_.runFor(Draw(random_, 1, 300));
    }
    end();
  }

  int events() const { return seen_; }
  std::size_t picturesOpened() const { return stage_.pictures.opened.size(); }

 private:
  saver::Form1& form() { return show_->form(); }

  static int dpiOf(Random& random) { return Draw(random, 0, 1) == 0 ? 96 : 144; }

  void addPictures() {
    const int count = Draw(random_, 0, 5);
    for (int i = 0; i < count; ++i) {
      static constexpr const char* kCaptions[] = {"", " ", "a", "caption", "a caption that is wide"};
      stage_.addPicture(DrawSize(random_, kMostPicture), base::Rgb(50 * i, 255 - 50 * i, 80),
                        OneOf(random_, kCaptions));
      const std::string path = "C:\\pictures\\" + std::to_string(i) + ".jpg";
      if (Draw(random_, 0, 9) == 0) stage_.pictures.addBroken(path, DrawSize(random_, kMostPicture));
      if (Draw(random_, 0, 9) == 0) stage_.set("images/" + std::to_string(i), "C:\\gone.jpg");
      if (Draw(random_, 0, 9) == 0) stage_.pictures.add(path, {1, 5000}, base::Rgb(1, 2, 3));
    }
    lastIndex_ = std::max(0, count - 1);
  }

  void drawSettings() {
    const auto choose = [this](const char* key, auto& values) { stage_.set(key, OneOf(random_, values)); };
    static constexpr const char* kFlag[] = {"0", "1"};
    static constexpr const char* kSpeed[] = {"0", "1", "2", "3", "4", "5", "6", "fast"};
    static constexpr const char* kSeconds[] = {"0", "0.2", "1", "3", "7"};
    static constexpr const char* kPlace[] = {"cent", "rand"};
    static constexpr const char* kPercent[] = {"0", "1", "30", "60", "90", "99"};
    static constexpr const char* kDisplay[] = {"0", "1", "2"};
    static constexpr const char* kBackground[] = {"0", "1", "2", "3", "7", "none"};
    static constexpr const char* kScrollSpeed[] = {"0", "150", "1000", "-40"};
    static constexpr const char* kTime[] = {"", "0", "200", "1500"};
    choose("image/randomPick", kFlag);
    choose("image/picSpeed", kSpeed);
    choose("image/timeInterval", kSeconds);
    choose("image/picRandom", kPlace);
    choose("image/picturePercent", kPercent);
    choose("image/timeDisplay", kDisplay);
    choose("background/backEffect", kBackground);
    choose("font/scroll", kFlag);
    choose("font/scrollSpeed", kScrollSpeed);
    choose("extras/transitionTime", kTime);
    stage_.set("extras/log", "1");  // in which a run-time error is to be read
    // Now and then an effect outlasts the hold of the picture's timer.
    if (Draw(random_, 0, 29) == 0) stage_.set("extras/transitionTime", "65000");
    stage_.set("image/mouseSensitivity", std::to_string(Draw(random_, 1, 30)));
    stage_.set("background/backgroundDisplay", std::to_string(Draw(random_, 0, 2)));
    stage_.set("background/backgroundImage", "C:\\back.jpg");
    stage_.pictures.add("C:\\back.jpg", DrawSize(random_, 40), base::Rgb(9, 9, 90));
    for (const char* effect : kEffects) choose((std::string("transitions/") + effect).c_str(), kFlag);
    static constexpr const char* kOthers[] = {"", "black", "same", "different", "span"};
    choose("extras/otherScreens", kOthers);
    choose("extras/matchOrientation", kFlag);
    if (Draw(random_, 0, 19) == 0) spoil();
  }

  // What goes beyond the documented show, each half of the time.
  void drawExtras() {
    const auto choose = [this](const char* key, auto& values) {
      if (Draw(random_, 0, 1) == 0) stage_.set(std::string("extras/") + key, OneOf(random_, values));
    };
    static constexpr const char* kOn[] = {"1"};
    static constexpr const char* kFit[] = {"whole", "fill"};
    static constexpr const char* kSurround[] = {"background", "blur"};
    static constexpr const char* kChange[] = {"crossfade", "direct"};
    static constexpr const char* kPercent[] = {"3", "20"};
    choose("loadAhead", kOn);
    if (Draw(random_, 0, 1) == 0) return;
    choose("fit", kFit);
    choose("surround", kSurround);
    choose("change", kChange);
    choose("panZoom", kPercent);
    stage_.screen.animations = Draw(random_, 0, 3) != 0;
    // Most pictures come soon, some after their turn, a few not at all.
    stage_.workers.delayMs = [this] {
      const int kind = Draw(random_, 0, 19);
      if (kind == 0) return std::optional<int>();
      return std::optional<int>(kind < 3 ? Draw(random_, 1000, 15'000) : Draw(random_, 0, 200));
    };
  }

  // A setting that no conversion takes: the show ends by itself sooner or later.
  void spoil() {
    static constexpr const char* kKeys[] = {"image/timeInterval", "font/scroll", "font/newFontForeColor",
                                            "background/newBackColor"};
    stage_.set(OneOf(random_, kKeys), "soon");
    settingsAreGood_ = false;
  }

  // Beside each other to the right, or left of the primary screen.
  void drawOtherScreens() {
    std::vector<base::PixelRect>& others = stage_.screen.others;
    others.resize(static_cast<std::size_t>(Draw(random_, 0, 3)));
    int right = kMostScreen;
    for (base::PixelRect& other : others) {
      if (!other.isEmpty() && Draw(random_, 0, 2) != 0) continue;
      const base::PixelSize size = DrawSize(random_, kMostScreen);
      const int left = Draw(random_, 0, 3) == 0 ? -size.width : right;
      other = {left, Draw(random_, -20, 20), size.width, size.height};
      right += kMostScreen;
    }
  }

  // One thing that a user or a system does.
  void act() {
    if (form().isOver()) return;
    switch (Draw(random_, 0, 17)) {
      case 0:
        stage_.screen.size = Draw(random_, 0, 9) == 0 ? base::PixelSize{} : DrawSize(random_, kMostScreen);
        if (stage_.screen.size.isEmpty()) return;  // nobody is told before there is a screen again
        stage_.window.onScreenChanged();
        break;
      case 1:
        drawOtherScreens();
        stage_.window.onScreenChanged();
        break;
      case 2:
        stage_.pictures.addBroken("C:\\pictures\\" + std::to_string(Draw(random_, 0, 4)) + ".jpg", {30, 20});
        break;
      case 3:
        stage_.pictures.add("C:\\pictures\\" + std::to_string(Draw(random_, 0, 4)) + ".jpg",
                            DrawSize(random_, kMostPicture), base::Rgb(1, 2, 3));
        break;
      case 4:
        composeAll();
        break;
      case 5:
        // The password is refused: the show stays.
        if (facts_.guardsPassword()) stage_.window.onKeyDown(65);
        break;
      case 6:
        turnDisplay();
        break;
      case 7:
        stage_.workers.comeBack();
        break;
      case 8:
        stage_.window.onMouseMove({Draw(random_, 0, 63), Draw(random_, 0, 63)});
        break;
      default:
        stage_.window.onMouseMove({Draw(random_, 3, 5), Draw(random_, 3, 5)});
        break;
    }
  }

  void turnDisplay() {
    if (isDark_) {
      lightUp();
      return;
    }
    stage_.window.onDisplayPower(false);
    if (form().isOver() || !form().loadsAhead()) return;
    isDark_ = true;
    stage_.window.presented.clear();  // a change that is under way has drawn before
    jobsBefore_ = stage_.workers.jobs;
    // A show that waits in the dark lets events run until it is light again, and here nobody else makes any.
    stage_.loop.postAfter(Draw(random_, 1, 5000), [this] { lightUp(); });
  }

  void lightUp() {
    isDark_ = false;  // on its way the show may load and draw
    if (!form().isOver()) stage_.window.onDisplayPower(true);
  }

  // What the screen shows piece by piece is what it shows when it is composed at one go.
  void composeAll() {
    if (isDark_) return;
    stage_.stage.flush();
    const base::Bitmap before = stage_.window.screen;
    stage_.stage.invalidateAll();
    stage_.stage.flush();
    EXPECT_TRUE(stage_.window.screen == before) << "not composed alike";
  }

  // A show that ended by an error has asked for the password where one is needed, and was refused it.
  void end() {
    if (!stage_.loop.isQuitting()) {
      machine_.passwords.accepts = true;
      const int way = Draw(random_, 0, 3);
      if (way == 0) stage_.window.onKeyDown(65);
      if (way == 1) stage_.window.onMouseDown({1, 1});
      if (way == 2) stage_.window.onCloseRequest();
      if (way == 3) stage_.window.onSessionEnd();
      EXPECT_TRUE(form().isOver());
    }
    checkEnd();
    // Whatever is still on its way finds nothing to do.
    const std::size_t presented = stage_.window.presented.size();
    const std::size_t calls = stage_.window.calls.size();
    const std::size_t opened = stage_.pictures.opened.size();
    stage_.clock.advance(100000);
    for (forms::Timer* timer : {&form().StartSaver, &form().ImageChangeTimer, &form().FloatTimer,
                                &form().ScrollerTimer, &form().timeTimer}) {
      timer->onTimer();
    }
    form().ScreenChanged();
    EXPECT_EQ(stage_.window.presented.size(), presented);
    EXPECT_EQ(stage_.window.calls.size(), calls);
    EXPECT_EQ(stage_.pictures.opened.size(), opened);
  }

  // Whatever files there are and whatever happens, good settings give a show that only its user ends.
  void checkErrors() const {
    if (!settingsAreGood_) return;
    const auto log =
        stage_.files.content.find(std::string(support::ShowStage::programFolder()) + "\\lumora.log");
    if (log == stage_.files.content.end()) return;
    EXPECT_EQ(log->second.find("ended by an error"), std::string::npos) << log->second;
  }

  void checkEnd() {
    checkErrors();
    EXPECT_TRUE(stage_.loop.isQuitting());
    EXPECT_TRUE(stage_.window.closed);
    EXPECT_TRUE(machine_.desktop.taskbarVisible);
    EXPECT_FALSE(machine_.desktop.running);
    // A picture that was dropped while it is loaded has its ten seconds still.
    EXPECT_LE(stage_.loop.timersRunning(), form().loadsAhead() ? 1 : 0);
  }

  void check() {
    ++seen_;
    const bool hasDrawn = !stage_.window.presented.empty();
    stage_.window.presented.clear();
    if (form().isOver() || testing::Test::HasFailure()) return;
    if (isDark_) {
      EXPECT_FALSE(hasDrawn) << "in the dark";
      EXPECT_EQ(stage_.workers.jobs, jobsBefore_) << "in the dark";
      return;
    }
    checkTimers();
    checkCaption();
    checkClock();
    if (changesWithoutPause() && changing()) {
      // The box stands for all that changes. The new picture may be one that overruns the screen, and a
      // screen that changes meanwhile gives it another size.
      lastLeft_ = lastTop_ = {-kAnywhere, false};
    } else if (form().DisplayingPicture.visible()) {
      checkPicture();
    }
    EXPECT_EQ(stage_.window.covered, form().area());
    EXPECT_GE(form().currentImageIndex(), -1);
    EXPECT_LE(form().currentImageIndex(), lastIndex_ + 1);
  }

  double number(const std::string& text) const { return base::StrictDouble(text); }
  const settings::SettingsRecord& record() { return form().settings().record; }
  bool changesWithoutPause() { return saver::Looks::of(record()).change != saver::ChangeStyle::Documented; }
  bool floats() { return record().picRandom != "cent"; }

  // A change is under way when its hold is on, or when the first one has begun and not ended.
  bool changing() {
    const bool first = form().StartSaver.enabled() && form().currentImageIndex() >= 0 && begun_;
    return first || (form().ImageChangeTimer.enabled() && form().ImageChangeTimer.interval() == 60000);
  }

  void checkTimers() {
    begun_ = begun_ || !stage_.pictures.opened.empty();
    EXPECT_EQ(form().StartSaver.interval(), 500);
    if (!settingsAreGood_) return;
    const int changeMs = static_cast<int>(number(record().timeInterval) * 1000);
    const forms::Timer& change = form().ImageChangeTimer;
    if (change.enabled()) {
      EXPECT_TRUE(change.interval() == changeMs || change.interval() == 60000) << change.interval();
      EXPECT_TRUE(form().pictureShown());
    }
    const bool still = !floats() && changeMs == 0;
    EXPECT_EQ(change.enabled(), !still && !form().StartSaver.enabled());
    if (form().FloatTimer.enabled()) {
      EXPECT_TRUE(floats());
    }
    const double speed = record().picSpeed == "fast" ? -1 : number(record().picSpeed);
    const auto floatMs =
        floats() && !form().StartSaver.enabled() ? saver::FloatIntervalMs(speed) : std::nullopt;
    if (floatMs) {
      EXPECT_EQ(form().FloatTimer.interval(), *floatMs);
    }
    EXPECT_EQ(form().timeTimer.interval(), 100);
    if (number(record().timeDisplay) == 0) {
      EXPECT_FALSE(form().timeTimer.enabled());
    }
    const bool scrolls = number(record().scroll) == 0;
    if (form().ScrollerTimer.enabled()) {
      EXPECT_TRUE(scrolls);
      EXPECT_EQ(form().ScrollerTimer.interval(), 100);
    } else if (scrolls) {
      EXPECT_TRUE(form().StartSaver.enabled()) << "a caption scrolls from the first picture on";
    }
  }

  // The caption is hidden while a change is under way, and is the shown picture's otherwise.
  void checkCaption() {
    const forms::Label& caption = form().Label1;
    const base::PixelRect part = form().primaryPart();
    const auto perPixel = static_cast<float>(form().twipsPerPixel());
    EXPECT_FLOAT_EQ(caption.top(), static_cast<float>(part.top) * perPixel);
    if (!settingsAreGood_) return;
    if (!caption.visible()) return;
    EXPECT_TRUE(form().pictureShown());
    // The old picture stands, with its caption, until the new one has been loaded.
    EXPECT_FALSE(changing() && !form().loadsAhead()) << "a caption over a change";
    const float left = static_cast<float>(part.left) * perPixel;
    const float width = static_cast<float>(part.width) * perPixel;
    if (number(record().scroll) != 0) {
      EXPECT_FLOAT_EQ(caption.left(), left + saver::CenteredEdge(width, caption.width()));
    } else if (number(record().scrollSpeed) >= 0) {
      EXPECT_LE(caption.left(), left + width);
      EXPECT_GE(caption.left() + caption.width(), left);
    }
  }

  // The clock's last letter stands in the corner or left of it; the clock may be wider than a small screen.
  void checkClock() {
    if (!form().time.visible()) return;
    const base::PixelRect part = form().primaryPart();
    const auto perPixel = static_cast<float>(form().twipsPerPixel());
    EXPECT_LE(form().time.left() + form().time.width(), static_cast<float>(part.right()) * perPixel + 0.5F);
    EXPECT_NEAR(form().time.top() + form().time.height(), static_cast<float>(part.bottom()) * perPixel, 0.5F);
  }

  void checkPicture() {
    const forms::PictureBox& box = form().DisplayingPicture;
    const saver::Looks looks = saver::Looks::of(record());
    // One that has a look and cannot be shown leaves a box of the documented size.
    const bool isInside = box.width() <= form().width() && box.height() <= form().height();
    if (floats() || looks.isDocumentedSize() || !isInside) checkSize(box);
    const bool centred = !floats() || !form().pictureShown();
    if (centred) {
      const auto middle = saver::Centered(form().width(), form().height(), box.width(), box.height());
      EXPECT_FLOAT_EQ(box.left(), middle.left);
      EXPECT_FLOAT_EQ(box.top(), middle.top);
      return;
    }
    checkAxis(box.left(), box.width(), form().width(), lastLeft_);
    checkAxis(box.top(), box.height(), form().height(), lastTop_);
  }

  // The longer side keeps to its share of the screen, to the pixel.
  void checkSize(const forms::PictureBox& box) {
    const auto limit =
        saver::PictureLimit::of(form().width(), form().height(), form().settings().pictureScale);
    const auto pixel = static_cast<float>(form().twipsPerPixel());
    const bool portrait = box.width() < box.height();
    const float longer = portrait ? box.height() : box.width();
    const auto most = static_cast<float>(portrait ? limit.maxPictureHeight : limit.maxPictureWidth);
    const auto other = static_cast<float>(portrait ? limit.maxPictureWidth : limit.maxPictureHeight);
    // Rounding to whole pixels can make a nearly square picture square, or change its longer side.
    const bool nearlySquare = std::abs(box.width() - box.height()) <= 2 * pixel;
    EXPECT_LE(longer, (nearlySquare ? std::max(most, other) : most) + 2 * pixel);
  }

  // One that overruns the screen by design trembles where it is. A smaller one that comes after it finds its
  // way back from beyond the left or the top.
  struct AxisWas {
    float position = 0;
    bool fitted = false;
  };
  static void checkAxis(float position, float length, float screen, AxisWas& was) {
    const bool fits = length <= screen;
    if (fits) {
      EXPECT_GE(position, std::min(-kStep, was.fitted ? was.position : was.position - kStep));
      EXPECT_LE(position + length, screen + kStep);
    }
    was = {position, fits};
  }

  Random& random_;
  support::FakeMachine machine_;
  support::ShowStage stage_;
  os::SystemFacts facts_;
  startup::SystemRestore restore_{machine_.desktop};
  std::optional<startup::Show> show_;
  bool settingsAreGood_ = true;
  bool isDark_ = false;
  int jobsBefore_ = 0;  // of the loader, when it became dark
  bool begun_ = false;
  AxisWas lastLeft_;
  AxisWas lastTop_;
  int lastIndex_ = 0;
  int seen_ = 0;
};

class ShowMonkey : public testing::TestWithParam<int> {};

TEST_P(ShowMonkey, AMillionEventsLeaveEverythingWhereItIsPromisedAndNothingAfterTheEnd) {
  const unsigned seed = kSeed + static_cast<unsigned>(GetParam());
  std::cout << "seed " << seed << "\n";
  Random random(seed);
  int shows = 0;
  std::size_t pictures = 0;
  for (int events = 0; events < kEventsOfAPart && !HasFailure(); ++shows) {
    SCOPED_TRACE("show " + std::to_string(shows));
    MonkeyShow show(random, shows % 3 == 0);
    show.run(kEventsOfAShow);
    events += show.events();
    pictures += show.picturesOpened();
  }
  EXPECT_GT(shows, kEventsOfAPart / kEventsOfAShow / 2);
  EXPECT_GT(pictures, 10000U / kParts) << "pictures came and went";
}

INSTANTIATE_TEST_SUITE_P(Parts, ShowMonkey, testing::Range(0, kParts));

}  // namespace
