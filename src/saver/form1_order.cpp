// Which picture the show comes to next.
#include <algorithm>
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

void Form1::prepareAll() {
  for (Face* face : faces()) face->prepareNext();
}

// A change that is under way knows its picture by the list as it was, so the news waits for its end.
void Form1::takeNews() {
  if (change_ != ChangeState::None || !order_.takeNews()) return;
  if (!pictureShown()) {
    if (loadsAhead()) chooseFirst();
  } else if (isDrawn()) {
    AdvancePictureIndex();
  } else {
    setNext(order_.nextInList());
    chooseForFurther();
    prepareAll();
  }
}

void Form1::reseed() { random_.reseed(os::SecondsSinceMidnight(services_.clock.now())); }

// Two draws have 48 bits; the day and the machine's own time make two shows differ that begin at the same
// time of day.
std::uint64_t Form1::drawSeed() {
  const auto draw = [this] { return static_cast<std::uint64_t>(random_.next() * 16777216.0F); };
  const os::LocalTime now = services_.clock.now();
  const auto day = static_cast<std::uint64_t>((now.year * 12 + now.month) * 31 + now.day);
  const auto tick = static_cast<std::uint64_t>(services_.clock.tickMs());
  return library::Scramble((draw() << 24 | draw()) ^ library::Scramble(day << 32 ^ tick));
}

}  // namespace saver
