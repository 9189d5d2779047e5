// Which picture the show comes to next.
#include <algorithm>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "library/path_hash.h"
#include "saver/form1.h"

namespace saver {

void Form1::beginOrder() {
  order_.begin();
  newsTimer_.setEnabled(order_.followsFolders());
  rememberTimer_.setEnabled(order_.remembers());
}

void Form1::chooseFirst() {
  reseed();
  setNext(-1);
  const auto first = order_.first([this] { return drawSeed(); });
  if (matchesShapes()) {
    startDealing(first);
    return;
  }
  if (!first) {
    AdvancePictureIndex();
    return;
  }
  setNext(*first);
  chooseForFurther();
  prepareAll();
}

void Form1::AdvancePictureIndex() {
  reseed();
  if (matchesShapes()) {
    dealByShape();
    return;
  }
  if (const auto next = order_.next([this] { return drawSeed(); })) {
    setNext(*next);
  } else if (isDrawn()) {
    setNext(drawIndex());
  } else {
    // Where each screen has a picture of its own, a change has taken as many as there are screens.
    const bool several = otherScreens_ == OtherScreens::Different && !further_.empty() &&
                         currentImageIndex() >= 0 && settings_.lastImageIndex >= 0;
    const std::int16_t last = several ? further_.back().face->currentImageIndex() : currentImageIndex();
    setNext(base::ToInt16(last + 1));
  }
  chooseForFurther();
  prepareAll();
}

bool Form1::isDrawn() const { return base::LeadingNumber(settings_.record.randomPick) == 1; }

std::int16_t Form1::drawIndex() {
  const double drawn =
      (static_cast<double>(settings_.lastImageIndex) + 1) * static_cast<double>(random_.next());
  return base::ToInt16(base::Int(drawn));
}

// Pictures of their own for the further screens: those that come behind the primary one's, none of them twice
// while there are enough.
void Form1::chooseForFurther() {
  const int count = settings_.lastImageIndex + 1;
  if (otherScreens_ != OtherScreens::Different || count <= 0) {
    for (const Further& further : further_) further.face->setNext(currentImageIndex());
    return;
  }
  std::int16_t index = currentImageIndex() < count ? currentImageIndex() : std::int16_t{0};
  std::vector<std::int16_t> taken{index};
  for (const Further& further : further_) {
    index = nextBehind(index);
    for (int tries = 0; tries < count && std::ranges::find(taken, index) != taken.end(); ++tries) {
      index = static_cast<std::int16_t>((index + 1) % count);
    }
    taken.push_back(index);
    further.face->setNext(index);
  }
}

std::int16_t Form1::nextBehind(std::int16_t index) {
  if (const auto next = order_.nextBehind(index, [this] { return drawSeed(); })) return *next;
  return isDrawn() ? drawIndex() : static_cast<std::int16_t>((index + 1) % (settings_.lastImageIndex + 1));
}

bool Form1::matchesShapes() const {
  return settings_.record.matchOrientation == "1" && otherScreens_ == OtherScreens::Different &&
         !further_.empty() && settings_.lastImageIndex >= 0;
}

void Form1::startDealing(std::optional<std::int16_t> first) {
  upcoming_.startWith(first ? *first : isDrawn() ? drawIndex() : std::int16_t{0});
  dealByShape();
}

// A picture of the shape of its screen for each, the primary one first.
void Form1::dealByShape() {
  if (upcoming_.isEmpty()) upcoming_.startWith(nextBehind(std::max(currentImageIndex(), std::int16_t{0})));
  for (Face* face : faces()) face->setNext(-1);
  for (Face* face : faces()) dealTo(*face);
  prepareAll();
  findOutShapes();
}

void Form1::dealTo(Face& face) {
  std::vector<std::int16_t> taken;
  for (const Face* other : faces()) {
    if (other != &face) taken.push_back(other->currentImageIndex());
  }
  face.setNext(upcoming_.take([&](std::int16_t index) { return fits(index, face); }, taken,
                              [this](std::int16_t behind) { return nextBehind(behind); }));
}

void Form1::findOutShapes() {
  if (!loadsAhead()) return;
  std::vector<std::string> paths;
  for (const Face* face : faces()) paths.push_back(pathOf(face->currentImageIndex()));
  for (const std::int16_t index : upcoming_.inSight()) paths.push_back(pathOf(index));
  shapes_.findOut(std::move(paths));
}

// What is not known yet fits until it is known.
bool Form1::fits(std::int16_t index, const Face& face) {
  const std::string path = pathOf(index);
  const Shape shape = loadsAhead() ? shapes_.known(path).value_or(Shape::Neither) : shapes_.read(path);
  return shape == Shape::Neither || shape == ShapeOf(face.screenSize());
}

// Between two changes nothing of what was dealt has been seen yet.
void Form1::dealAgainWhereItMisfits() {
  if (isOver() || change_ != ChangeState::None || !matchesShapes()) return;
  const std::vector<Face*> all = faces();
  if (std::ranges::all_of(all, [this](Face* face) { return fits(face->currentImageIndex(), *face); })) return;
  std::vector<std::int16_t> dealt;
  dealt.reserve(all.size());
  for (const Face* face : all) dealt.push_back(face->currentImageIndex());
  upcoming_.putBack(dealt);
  dealByShape();
}

std::string Form1::pathOf(std::int16_t index) const {
  const auto at = static_cast<std::size_t>(index);
  return at < settings_.imageFiles.size() ? settings_.imageFiles[at] : std::string();
}

void Form1::prepareAll() {
  for (Face* face : faces()) face->prepareNext();
}

// A change that is under way knows its picture by the list as it was, so the news waits for its end.
void Form1::takeNews() {
  if (change_ == ChangeState::None && order_.takeNews()) chooseFromNewList();
}

void Form1::chooseFromNewList() {
  upcoming_ = {};
  if (!pictureShown()) {
    if (loadsAhead()) chooseFirst();
  } else if (isDrawn()) {
    AdvancePictureIndex();
  } else {
    setNext(order_.nextInList());
    chooseForFurther();
    prepareAll();
  }
  if (takesKeys()) stepThroughNewList();
}

void Form1::reseed() { random_.reseed(os::SecondsSinceMidnight(services_.clock.now())); }

// Two draws have 48 bits; the day and the machine's own time make two shows differ that begin at the same
// time of day.
std::uint64_t Form1::drawSeed() {
  const auto draw = [this] { return static_cast<std::uint64_t>(random_.next() * 16777216.0F); };
  const os::LocalTime now = services_.clock.now();
  const std::int64_t month = std::int64_t{now.year} * 12 + now.month;
  const auto day = static_cast<std::uint64_t>(month * 31 + now.day);
  const auto tick = static_cast<std::uint64_t>(services_.clock.tickMs());
  return library::Scramble((draw() << 24 | draw()) ^ library::Scramble(day << 32 ^ tick));
}

}  // namespace saver
