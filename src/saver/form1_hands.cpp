// What a user's keys make of the show, where it takes keys.
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "os/paths.h"
#include "saver/form1.h"

namespace saver {

namespace {

constexpr int kQuestionMs = 3000;      // within which a picture can be put away
constexpr int kNothingLeftMs = 10000;  // for what explains an empty screen
constexpr const char* kNothingLeft = "No pictures are left to show. The settings can bring them back.";

}  // namespace

// A step that the user took: it comes without effect and pause, and the one who waits can be told of another.
class Form1::StepScope {
 public:
  explicit StepScope(Form1& show) : show_(show) { show_.steps_ = true; }
  ~StepScope() { show_.steps_ = false; }
  StepScope(const StepScope&) = delete;
  StepScope& operator=(const StepScope&) = delete;

 private:
  Form1& show_;
};

std::string Form1::shownPath() const { return present_ ? present_->path : std::string(); }

void Form1::wish(ShowWish wish, bool isRepeated) {
  if (isOver() || !takesKeys()) return;
  if (!isRepeated) {
    wishes_.add(wish);
  } else if (change_ != ChangeState::None || !wishes_.addRepeated(wish, services_.clock.tickMs())) {
    return;
  }
  carryOutWishes(false);
  flush();
}

// A wish for what is on the screen, or for another picture than the awaited one.
bool Form1::endsAwaiting(ShowWish wish) const {
  if (wish == ShowWish::Next) return true;
  if (!pictureShown()) return false;
  if (wish == ShowWish::Hold) return !isHeld_ && !steps_;
  return wish == ShowWish::Back || wish == ShowWish::NeverAgain;
}

// A wish waits for the end of the change that is under way, which comes at once.
bool Form1::endsChange(ShowWish wish) {
  if (drawsChange()) {
    hurries_ = true;
    return true;
  }
  if (change_ != ChangeState::Awaiting || !endsAwaiting(wish)) return false;
  leavesAwaited_ = wish;
  return true;
}

// Steps are taken from the timer alone: keys that came while a picture was loaded have all been heard then.
void Form1::carryOutWishes(bool takesSteps) {
  while (const std::optional<ShowWish> wish = wishes_.first()) {
    if (isOver() || endsChange(*wish)) break;
    const std::int64_t now = services_.clock.tickMs();
    if (IsStep(*wish) && (!takesSteps || !wishes_.isFirstDue(now))) break;
    wishes_.takeFirst(now);
    carryOut(*wish);
  }
  wishTimer_.setEnabled(!isOver() && !wishes_.isEmpty());
}

void Form1::carryOut(ShowWish wish) {
  switch (wish) {
    case ShowWish::Next:
      stepToNext();
      break;
    case ShowWish::Back:
      stepBack();
      break;
    case ShowWish::Hold:
      holdOrGoOn();
      break;
    case ShowWish::Information:
      informs_ = !informs_;
      inform();
      break;
    case ShowWish::NeverAgain:
      neverAgain();
      break;
    case ShowWish::Help:
      notes_.showKeys(!notes_.showsKeys(), !facts_.guardsPassword());
      break;
    case ShowWish::OpenFolder:
      break;  // whoever can end the program does that
  }
}

void Form1::stepToNext() {
  if (StartSaver.enabled()) {
    StartSaver_Timer();  // the first picture has not come yet
  } else if (settings_.lastImageIndex < 0) {
    notes_.say(kNothingLeft, kNothingLeftMs);
  } else {
    takeStep();
  }
}

// Pictures that can be had no more are passed over while the present one stands.
void Form1::stepBack() {
  if (StartSaver.enabled()) return;
  const auto isListed = [this](const ShownPicture& picture) { return indexOf(picture).has_value(); };
  while (const ShownPictures::Change* before = shown_.aimBack(isListed)) {
    if (loadsAhead() || services_.pictures.open(before->front().path)) {
      bringAgain(*before);
      awaitsOlder_ = true;
      takeStep();
      awaitsOlder_ = false;
      if (isOver() || !std::exchange(olderHasGone_, false)) return;
    }
    shown_.forgetAimed();
  }
  notes_.say("There is no picture before this one.");
  chooseNext(Upcoming::Stands);
}

void Form1::takeStep() {
  const StepScope step(*this);
  ImageChangeTimer_Timer();
}

// What is behind the present picture comes next again. `upcoming`: what the order has chosen already, if it
// is not on the screens now.
void Form1::chooseNext(Upcoming upcoming) {
  const auto isListed = [this](const ShownPicture& picture) { return indexOf(picture).has_value(); };
  if (const ShownPictures::Change* again = shown_.aimForward(isListed)) {
    bringAgain(*again);
  } else if (putAside_) {
    takeUp();
  } else if (upcoming == Upcoming::HasCome) {
    AdvancePictureIndex();
  }
}

// The pictures of an earlier change come next. What was to come next is put aside.
void Form1::bringAgain(const ShownPictures::Change& change) {
  if (!putAside_) {
    putAside_.emplace();
    for (const Face* face : faces()) putAside_->push_back(face->currentImageIndex());
  }
  const std::int16_t first = *indexOf(change.front());
  std::size_t i = 0;
  for (Face* face : faces()) {
    face->setNext(i < change.size() ? indexOf(change[i]).value_or(first) : first);
    ++i;
  }
  prepareAll();
}

void Form1::takeUp() {
  const std::vector<std::int16_t> upcoming = *std::exchange(putAside_, std::nullopt);
  const std::vector<Face*> all = faces();
  setNext(upcoming.front());
  if (upcoming.size() == all.size()) {
    for (std::size_t i = 0; i < all.size(); ++i) all[i]->setNext(upcoming[i]);
  } else {
    chooseForFurther();  // there are other screens now
  }
  prepareAll();
}

// The list is another one, and what comes next has been chosen from it.
void Form1::stepThroughNewList() {
  putAside_.reset();
  if (pictureShown()) chooseNext(Upcoming::Stands);
  inform();
}

// The pictures that were awaited have not come.
void Form1::leaveAwaited() {
  const std::optional<ShowWish> wish = std::exchange(leavesAwaited_, std::nullopt);
  if (!wish) return;
  const bool isNew = !shown_.aims();
  if (*wish == ShowWish::Next && isNew) {
    for (const Face* face : faces()) order_.shown(face->currentImageIndex());
    AdvancePictureIndex();
    return;
  }
  if (IsStep(*wish) && (steps_ || *wish == ShowWish::Next)) {
    shown_.skipAimed();
  }
  chooseNext(Upcoming::Stands);
}

void Form1::noteShown() {
  ShownPictures::Change change;
  for (const Face* face : faces()) {
    change.push_back({pathOf(face->currentImageIndex()), face->currentImageIndex()});
  }
  present_.reset();
  if (!change.front().path.empty()) present_ = change.front();
  if (asked_ && (!present_ || present_->path != asked_->path)) {
    asked_.reset();
    notes_.sayNoMore();
  }
  shown_.came(std::move(change), present_ && showsPicture());
  inform();
}

void Form1::holdOrGoOn() {
  isHeld_ = !isHeld_;
  ImageChangeTimer.setEnabled(cycles_ && !isHeld_);
  FloatTimer.setEnabled(pictureShown() && floats() && !isHeld_);
  for (Face* face : faces()) face->look().hold(isHeld_);
  notes_.say(isHeld_ ? "The picture is held." : "The show goes on.");
}

void Form1::neverAgain() {
  if (!present_) return;
  const std::int64_t now = services_.clock.tickMs();
  if (asked_ && asked_->path == present_->path && now < asked_->untilMs) {
    asked_.reset();
    putAway();
    return;
  }
  asked_ = Asked{present_->path, now + kQuestionMs};
  notes_.say("Press Delete again to never show this picture any more: " + os::NameOf(present_->path),
             kQuestionMs);
  // It stands for as long as it is asked about.
  if (ImageChangeTimer.enabled() && changeIntervalMs() > 0)
    ImageChangeTimer.setInterval(std::max(changeIntervalMs(), kQuestionMs));
}

void Form1::putAway() {
  const std::string path = present_->path;  // which changes on the way
  const bool isKept = order_.hide(path);
  chooseFromNewList();
  if (settings_.lastImageIndex < 0) setNext(0);
  takeStep();
  if (isOver()) return;
  if (settings_.lastImageIndex < 0) {
    notes_.say(kNothingLeft, kNothingLeftMs);
  } else if (isKept) {
    notes_.say(os::NameOf(path) + " will not be shown again.");
  } else {
    notes_.say(os::NameOf(path) + " is left out of this show; that could not be kept for others.",
               kQuestionMs);
  }
}

void Form1::inform() {
  if (!informs_) {
    notes_.inform({});
    return;
  }
  if (!present_) {
    notes_.inform({"No picture"});
    return;
  }
  std::vector<std::string> lines{os::NameOf(present_->path), os::FolderOf(present_->path)};
  if (const auto date = pictureDate()) lines.push_back(os::GeneralDate(services_.dates, *date));
  const std::optional<std::int16_t> index = indexOf(*present_);
  if (index) {
    lines.push_back(std::to_string(*index + 1) + " of " + std::to_string(settings_.lastImageIndex + 1));
  }
  notes_.inform(lines);
}

// Where a picture stands in the list now.
std::optional<std::int16_t> Form1::indexOf(const ShownPicture& picture) const {
  if (picture.index >= 0 && picture.index <= settings_.lastImageIndex &&
      pathOf(picture.index) == picture.path)
    return picture.index;
  const auto end = settings_.imageFiles.begin() + settings_.lastImageIndex + 1;
  const auto found = std::find(settings_.imageFiles.begin(), end, picture.path);
  if (found == end) return std::nullopt;
  return static_cast<std::int16_t>(found - settings_.imageFiles.begin());
}

void Form1::showNotes() {
  std::vector<forms::Label*> labels = notes_.labels();
  labels.insert(labels.begin(), &time);
  showOnStage(std::move(labels));
}

void Form1::layOutNotes() {
  const auto twips = [this](int pixels) { return static_cast<float>(pixels * twipsPerPixel()); };
  notes_.setRoom({twips(part_.left), twips(part_.top), twips(part_.width), twips(part_.height)});
}

}  // namespace saver
