// Which picture the show comes to next.
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
  currentImageIndex_ = -1;
  const auto first = order_.first([this] { return drawSeed(); });
  if (!first) {
    AdvancePictureIndex();
    return;
  }
  currentImageIndex_ = *first;
  if (loadsAhead_) prepareNext();
}

void Form1::AdvancePictureIndex() {
  reseed();
  if (const auto next = order_.next([this] { return drawSeed(); })) {
    currentImageIndex_ = *next;
  } else if (base::LeadingNumber(settings_.record.randomPick) == 1) {
    const double drawn =
        (static_cast<double>(settings_.lastImageIndex) + 1) * static_cast<double>(random_.next());
    currentImageIndex_ = base::ToInt16(base::Int(drawn));
  } else {
    currentImageIndex_ = base::ToInt16(currentImageIndex_ + 1);
  }
  if (loadsAhead_) prepareNext();
}

// A change that is under way knows its picture by the list as it was, so the news waits for its end.
void Form1::takeNews() {
  if (change_ != ChangeState::None || !order_.takeNews()) return;
  if (!pictureShown_) {
    if (loadsAhead_) chooseFirst();
  } else if (base::LeadingNumber(settings_.record.randomPick) == 1) {
    AdvancePictureIndex();
  } else {
    currentImageIndex_ = order_.nextInList();
    if (loadsAhead_) prepareNext();
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
